#include "shell/window_place.h"

#include <QScreen>

#include <array>

namespace tabrova {

namespace {

constexpr char Section[] = "Window";
constexpr int FirstWidth = 1000; // of the client area, at 100 percent
constexpr int FirstHeight = 700;
constexpr int LeastHeight = 330; // toolbar, strip and one staff
constexpr int FrameWidth = 8;    // what a window manager puts around a window, at most
constexpr int FrameHeight = 48;

struct ViewRow {
    const char* item;
    const char* key;
};

constexpr std::array Views = {ViewRow{"mnuViewNotation", "Notation"},
                              ViewRow{"mnuVirtualFretboard", "Fretboard"}};

int leastWidth(int percent) { return zoomed({0, 0, NarrowestFollowedWidth + 1, 1}, percent).width; }

QSize roomOn(const QScreen& screen) {
    return screen.availableGeometry().size() - QSize(FrameWidth, FrameHeight);
}

} // namespace

int zoomForScreen(const QSize& available) {
    int percent = UnzoomedPercent;
    for (const int step : ZoomSteps)
        if (available.width() >= 16 * step && available.height() >= 9 * step) percent = step;
    return percent;
}

WindowPlace::WindowPlace(frmMain& window, SettingsStore& settings) : window_(window), settings_(settings) {
    window_.bench().acts.add(*this);
}

WindowPlace::~WindowPlace() { window_.bench().acts.remove(*this); }

void WindowPlace::restore() {
    const QScreen& screen = *window_.screen();
    const QSize room = roomOn(screen);
    ViewCommands& views = window_.commands().views;
    views.setFirstZoom(zoomForScreen(room));
    limitSize();
    views.restoreZoom();
    limitSize();
    const QByteArray remembered =
        QByteArray::fromBase64(settings_.GetSetting(Section, "Geometry", {}).toLatin1());
    if (!remembered.isEmpty() && window_.restoreGeometry(remembered)) return;
    const int percent = views.zoom();
    window_.resizeClient(FirstWidth * percent / UnzoomedPercent, FirstHeight * percent / UnzoomedPercent);
    window_.resize(window_.size().boundedTo(room));
    QRect place(QPoint(), window_.size());
    place.moveCenter(screen.availableGeometry().center());
    window_.move(place.topLeft() - QPoint(FrameWidth, FrameHeight) / 2);
}

void WindowPlace::restoreViews() {
    for (const ViewRow& view : Views) {
        const QString stored = settings_.GetSetting(Section, view.key, {});
        QAction& item = *window_.menu().action(view.item);
        if (!stored.isEmpty() && item.isChecked() != (stored == "1")) item.trigger();
    }
}

void WindowPlace::remember() const {
    settings_.SaveSetting(Section, "Geometry", QString::fromLatin1(window_.saveGeometry().toBase64()));
    for (const ViewRow& view : Views)
        settings_.SaveSetting(Section, view.key, window_.menu().isChecked(view.item) ? "1" : "0");
}

void WindowPlace::actEnded(std::string_view, const Changes& changes) {
    if (changes.layout) limitSize();
}

void WindowPlace::limitSize() {
    ViewCommands& views = window_.commands().views;
    const QSize room = roomOn(*window_.screen());
    int largest = ZoomSteps.front();
    for (std::size_t step = 1; step < ZoomSteps.size(); ++step) {
        const bool fits = leastWidth(ZoomSteps[step]) <= room.width();
        window_.menu().setEnabled("mnuZoom(" + QString::number(step) + ")", fits);
        if (fits) largest = ZoomSteps[step];
    }
    views.setLargestZoom(largest);
    const int height = zoomed({0, 0, 1, LeastHeight}, views.zoom()).bottom();
    window_.setMinimumSize(QSize(leastWidth(views.zoom()), height).boundedTo(room));
}

} // namespace tabrova
