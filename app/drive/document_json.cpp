#include "app/drive/document_json.h"

#include "core/text/code_page.h"
#include "shell/frmMain.h"

#include <QJsonArray>

namespace tabrova {

namespace {

QString text(std::string_view bytes) { return QString::fromStdString(utf8FromCodePage(bytes)); }

template <class Number>
QJsonArray numbers(const std::vector<Number>& values) {
    QJsonArray list;
    for (const Number value : values)
        list.append(value);
    return list;
}

QJsonArray texts(const std::vector<std::string>& values) {
    QJsonArray list;
    for (const std::string& value : values)
        list.append(text(value));
    return list;
}

QJsonArray flags(const std::vector<std::int16_t>& values) {
    QJsonArray list;
    for (const std::int16_t value : values)
        list.append(value != False16);
    return list;
}

QJsonArray cells(const TextPool& pool, const CellGrid& grid) {
    QJsonArray list;
    for (int column = 0; column < grid.columns(); ++column) {
        if (grid.column(column).width() == CellColumn::Width::Empty) continue;
        for (int row = 0; row < grid.rows(); ++row)
            if (const TextId id = grid.at(column, row))
                list.append(QJsonArray{column, row, text(pool.text(id))});
    }
    return list;
}

QJsonArray marks(const TextPool& pool, const std::vector<TextId>& row) {
    QJsonArray list;
    for (std::size_t column = 0; column < row.size(); ++column)
        if (row[column]) list.append(QJsonArray{static_cast<int>(column), text(pool.text(row[column]))});
    return list;
}

void addFields(QJsonObject& json, const Document& document) {
    json["Title"] = text(document.Title);
    json["Author"] = text(document.Author);
    json["Tempo"] = document.Tempo;
    json["DoubleTime"] = document.DoubleTime != False16;
    json["Notes"] = text(document.Notes);
    json["PreventReverberations"] = document.PreventReverberations;
    json["RealtimeMode"] = document.RealtimeMode;
    json["CurrentColumn"] = document.CurrentColumn;
    json["CurrentStaff"] = document.CurrentStaff;
    json["CurrentTrack"] = document.CurrentTrack;
    json["ColumnInStaff"] = document.ColumnInStaff;
    json["CurrentString"] = document.CurrentString;
    json["ColumnCapacity"] = document.ColumnCapacity;
    json["RowCapacity"] = document.RowCapacity;
    json["TrackCount"] = document.TrackCount;
    json["HasFileName"] = document.HasFileName != False16;
    json["ClipboardStart"] = document.ClipboardStart;
    json["ClipboardLength"] = document.ClipboardLength;
    json["ColumnWidth"] = document.ColumnWidth;
    json["TopStaff"] = document.TopStaff;
    json["StaffCount"] = document.StaffCount;
    json["VisibleStaves"] = document.VisibleStaves;
    json["PlaybackPosition"] = document.playback.PlaybackPosition;
    json["RepeatStartColumn"] = document.playback.RepeatStartColumn;
    json["RepeatsLeft"] = document.playback.RepeatsLeft;
    json["InRepeat"] = document.playback.InRepeat != False16;
    json["LastColumn"] = document.lastColumn();
}

QJsonArray rectJson(const Rect& rect) { return {rect.left, rect.top, rect.width, rect.height}; }
QJsonArray lineJson(const Line& line) { return {line.x1, line.y1, line.x2, line.y2}; }

QJsonObject panelJson(frmMain& window, const char* name) {
    const auto* widget = window.findChild<QWidget*>(name);
    const QPoint place = widget->mapTo(window.clientArea(), QPoint(0, 0));
    return {{"geometry", QJsonArray{place.x(), place.y(), widget->width(), widget->height()}},
            {"visible", !widget->isHidden()}};
}

} // namespace

QJsonObject documentJson(const Document& document) {
    QJsonObject json;
    addFields(json, document);
    json["TrackNames"] = texts(document.TrackNames);
    json["TrackVolumes"] = texts(document.TrackVolumes);
    json["TrackInstruments"] = texts(document.TrackInstruments);
    json["GuitarTrackFlags"] = flags(document.GuitarTrackFlags);
    json["TuningTable"] = numbers(document.TuningTable);
    json["NoteGrid"] = cells(document.pool, document.NoteGrid);
    json["TechniqueGrid"] = cells(document.pool, document.TechniqueGrid);
    json["ClipboardNotes"] = cells(document.pool, document.ClipboardNotes);
    json["ClipboardTechniques"] = cells(document.pool, document.ClipboardTechniques);
    json["BarMarkRow"] = marks(document.pool, document.BarMarkRow);
    json["ClipboardBarMarks"] = marks(document.pool, document.ClipboardBarMarks);
    return json;
}

QJsonObject pageJson(frmMain& window) {
    const PageObjects& objects = window.editor().page();
    const ScrollState& scroll = window.editor().scroll();
    QJsonObject json = {
        {"nCursor", rectJson(objects.nCursor)},
        {"nCursorWidth", objects.borderWidth},
        {"nCursorColor", QColor(objects.color).name()},
        {"vLine1", lineJson(objects.vLine1)},
        {"NoteLine", lineJson(objects.NoteLine)},
        {"vLine1Visible", objects.vLine1Visible},
        {"NoteLineVisible", true}, // always there
    };
    for (const char* name : {"picDocument", "picStandardNotation", "picFretboard", "VScroll1",
                             "picTrackChooser", "picBend", "picRepeat", "picNoteSelector"})
        json[name] = panelJson(window, name);
    QJsonObject bar = json["VScroll1"].toObject();
    bar["min"] = scroll.minimum;
    bar["max"] = scroll.maximum;
    bar["value"] = scroll.value;
    json["VScroll1"] = bar;
    return json;
}

} // namespace tabrova
