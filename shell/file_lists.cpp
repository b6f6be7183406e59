#include "shell/file_lists.h"

#include "workbench/examples.h"

namespace tabrova {

namespace {

// A name is no caption: its "&" is shown.
QString captionOf(QString name) { return name.replace('&', "&&"); }

} // namespace

FileLists::FileLists(const ToolContext& context, MainMenu& menu) : context_(context), menu_(menu) {
    context_.bench.acts.add(*this);
}

FileLists::~FileLists() { context_.bench.acts.remove(*this); }

void FileLists::show() {
    listExamples();
    showRecent();
}

void FileLists::actEnded(std::string_view, const Changes& changes) {
    if (changes.recent) showRecent();
}

void FileLists::showRecent() {
    const QStringList& files = context_.commands.documents.recent.files();
    for (int place = 0; place < RecentDocuments::Most; ++place) {
        QAction* item = menu_.action("mnuRecentDocument(" + QString::number(place) + ")");
        const bool there = place < files.size();
        item->setVisible(there);
        if (!there) continue;
        const QString key = place + 1 < RecentDocuments::Most ? "&" + QString::number(place + 1) : "1&0";
        item->setText(key + "  " + captionOf(listedName(files[place])));
        item->setToolTip(files[place]);
    }
    menu_.setEnabled("mnuRecent", !files.isEmpty());
}

void FileLists::listExamples() {
    int number = 0;
    for (const ExampleDocument& example : exampleDocuments(context_.services.programFolder)) {
        QAction* item =
            menu_.addItem("mnuExamples", "mnuExample(" + QString::number(number++) + ")",
                          [this, file = example.file] { context_.commands.documents.openFile(file); });
        item->setText(captionOf(example.name));
    }
    menu_.setEnabled("mnuExamples", number > 0);
}

} // namespace tabrova
