#include "forms/captions.h"

#include "core/language/language_file.h"
#include "forms/control_names.h"
#include "forms/picture_button.h"
#include "forms/text_edges.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

namespace tabrova {

namespace {

constexpr qsizetype LongestText = 250; // characters
constexpr char NamedAfter[] = "namedAfter";

// A caption as it is read: the sign of an access key is none of its letters, and two of them are one.
QString spoken(const QString& caption) {
    QString text;
    for (qsizetype at = 0; at < caption.size(); ++at) {
        if (caption[at] == '&' && at + 1 < caption.size()) ++at;
        text.append(caption[at]);
    }
    return text;
}

// The form's controls by name, in lower case.
class FormControls {
  public:
    explicit FormControls(QWidget& form) : form_(form) {
        for (QObject* control : namedControls(form)) {
            const QString name = control->objectName().toLower();
            controls_.insert(name, control);
            if (name.endsWith(')')) arrays_[name.left(name.indexOf('('))].append(control);
        }
    }

    void show(const LanguageLine& line, const QString& text, const MessageSink& message) const {
        switch (line.use) {
        case LineUse::Title:
            setTitleOf(form_, text);
            break;
        case LineUse::Caption:
            setCaption(line.target, text);
            break;
        case LineUse::ToolTip:
            setToolTip(line.target, text);
            break;
        case LineUse::Message:
            if (message) message(line.target, text);
            break;
        }
    }

    // What shows no caption is called as its label is.
    void nameTheRest() const {
        for (QObject* control : controls_) {
            if (auto* label = qobject_cast<QLabel*>(control); label && label->buddy())
                nameAs(*label->buddy(), label->text());
            const QString other = control->property(NamedAfter).toString().toLower();
            auto* widget = qobject_cast<QWidget*>(control);
            if (widget && !other.isEmpty()) nameAs(*widget, captionOf(controls_.value(other)));
        }
    }

  private:
    static void nameAs(QWidget& widget, const QString& caption) {
        if (!showsCaption(widget)) widget.setAccessibleName(spoken(caption).trimmed());
    }

    void setCaption(const QString& name, const QString& text) const {
        const QList<QObject*> reached = reachedBy(name.toLower());
        if (reached.isEmpty()) return setTabCaption(name, text);
        for (QObject* control : reached)
            setCaptionOf(control, text);
    }

    static void setCaptionOf(QObject* control, const QString& text) {
        if (auto* action = qobject_cast<QAction*>(control)) action->setText(text);
        if (auto* button = qobject_cast<QAbstractButton*>(control)) button->setText(text);
        // The caption of a picture is not seen: it is its hint.
        if (auto* picture = dynamic_cast<PictureButton*>(control)) setToolTipOf(*picture, spoken(text));
        if (auto* label = qobject_cast<QLabel*>(control)) {
            label->setTextFormat(Qt::PlainText);
            label->setText(text);
        }
        if (auto* group = qobject_cast<QGroupBox*>(control)) group->setTitle(text);
        auto* widget = qobject_cast<QWidget*>(control);
        if (auto* line = qobject_cast<QLineEdit*>(control))
            line->setText(text);
        else if (widget && !showsCaption(*widget))
            widget->setAccessibleName(spoken(text)); // it is not seen
    }

    static bool showsCaption(const QWidget& widget) {
        return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLabel*>(&widget) ||
               qobject_cast<const QGroupBox*>(&widget);
    }

    static QString captionOf(const QObject* control) {
        if (auto* action = qobject_cast<const QAction*>(control)) return action->text();
        auto* label = qobject_cast<const QLabel*>(control);
        return label ? label->text() : QString();
    }

    // A name without an index stands for all controls of an array.
    QList<QObject*> reachedBy(const QString& name) const {
        QObject* control = controls_.value(name);
        return control ? QList<QObject*>{control} : arrays_.value(name);
    }

    // NAME(INDEX) of a set of tabs.
    void setTabCaption(const QString& name, const QString& text) const {
        const qsizetype bracket = name.indexOf('(');
        auto* tabs = qobject_cast<QTabWidget*>(controls_.value(name.left(bracket).toLower()));
        if (tabs) tabs->setTabText(name.mid(bracket + 1, name.size() - bracket - 2).toInt(), text);
    }

    // A button with a key of its own names the key too.
    void setToolTip(const QString& name, const QString& text) const {
        auto* widget = qobject_cast<QWidget*>(controls_.value(name.toLower()));
        if (widget) setToolTipOf(*widget, text);
    }

    static void setToolTipOf(QWidget& widget, const QString& text) {
        const QString key = widget.property("key").toString();
        const QString hint = key.isEmpty() ? text : text + " (" + key + ")";
        widget.setToolTip(hint);
        const bool named = qobject_cast<QAbstractButton*>(&widget) || qobject_cast<QLineEdit*>(&widget);
        if (named) widget.setAccessibleName(hint);
    }

    QWidget& form_;
    QHash<QString, QObject*> controls_;
    QHash<QString, QList<QObject*>> arrays_; // by the name before the index
};

void showTexts(QWidget& form, const std::filesystem::path& file, const MessageSink& message) {
    const FormControls controls(form);
    for (const LanguageText& each : languageTexts(form.objectName().toStdString(), file))
        controls.show(*each.line, QString::fromStdString(each.text).left(LongestText), message);
    controls.nameTheRest();
}

} // namespace

void nameAfter(QWidget* control, const char* captioned) { control->setProperty(NamedAfter, captioned); }

void showBuiltInCaptions(QWidget& form, const MessageSink& message) { showTexts(form, {}, message); }

void loadLanguage(QWidget& form, const std::filesystem::path& programFolder, const MessageSink& message) {
    showTexts(form, activeLanguageFile(programFolder), message);
}

} // namespace tabrova
