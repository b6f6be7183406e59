// What every form does with its texts, and how it says that it is closed.
#include "core/language/language_file.h"
#include "forms/captions.h"
#include "tests/forms/counting_form.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <fstream>
#include <map>

namespace tabrova {
namespace {

using testing::DemoForm;

using Forms = testing::CountingFormTest;

class TextForm : public Form {
  public:
    using Form::Form;
    std::map<std::string, QString> messages;

  protected:
    void takeMessage(std::string_view name, const QString& text) override {
        messages[std::string(name)] = text;
    }
};

class LargeControl : public QWidget {
  public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return {700, 650}; }
};

TEST_F(Forms, OpenAsLargeAsTheirControlsAskForHoweverSmallTheScreenIs) {
    DemoForm large(folder());
    auto* control = large.add<LargeControl>("large");
    large.show();
    EXPECT_EQ(control->size(), QSize(700, 650));
    large.hide();
    large.resize(500, 400);
    large.show();
    EXPECT_EQ(large.size(), QSize(500, 400));
    DemoForm small(folder());
    small.add<LargeControl>("large");
    small.resize(300, 200);
    small.show();
    EXPECT_EQ(small.size(), QSize(300, 200));
}

TEST_F(Forms, TakeTheirTextsWhenTheyLoad) {
    TextForm metronome("frmMetronome", folder(), nullptr);
    auto* label = named(new QLabel(&metronome), "Label1");
    EXPECT_EQ(metronome.objectName(), "frmMetronome");
    metronome.Form_Load();
    EXPECT_EQ(metronome.windowTitle(), "Metronome");
    EXPECT_EQ(label->text(), "Preset Beats:");
    EXPECT_EQ(metronome.messages["start"], "Start");
    EXPECT_EQ(metronome.messages["stop"], "Stop");
}

TEST_F(Forms, TakeTheTextsOfTheActiveLanguage) {
    std::ofstream file(activeLanguageFile(folder()), std::ios::binary);
    for (int number = 1; number <= 343; ++number)
        file << number << "\r\n";
    file.close();
    TextForm metronome("frmMetronome", folder(), nullptr);
    metronome.LoadLanguage();
    EXPECT_EQ(metronome.windowTitle(), "249");
    EXPECT_EQ(metronome.messages["stop"], "251");
}

TEST_F(Forms, MayLeaveTheirMessagesAlone) {
    DemoForm metronome(folder(), "frmMetronome");
    metronome.Form_Load();
    metronome.Form_Unload();
    EXPECT_EQ(metronome.windowTitle(), "Metronome");
    EXPECT_EQ(metronome.programFolder(), folder());
}

TEST_F(Forms, ShowTextsLetterByLetterUnlessALabelIsSaidToBeMarkup) {
    make();
    auto* plain = form->add<QLabel>("plain");
    auto* link = form->add<QLabel>("link");
    link->setTextFormat(Qt::RichText);
    QMessageBox box(form.get());
    const auto* boxText = box.findChild<QLabel*>("qt_msgbox_label");
    ASSERT_NE(boxText, nullptr);
    const Qt::TextFormat formatOfBox = boxText->textFormat();
    form->LoadLanguage();
    EXPECT_EQ(plain->textFormat(), Qt::PlainText);
    EXPECT_EQ(link->textFormat(), Qt::RichText);
    EXPECT_EQ(boxText->textFormat(), formatOfBox);
    auto* late = form->add<QLabel>("late");
    form->present();
    EXPECT_EQ(late->textFormat(), Qt::PlainText);
}

// Closing

TEST_F(Forms, SayOnceThatTheyAreClosedWhicheverWay) {
    const std::map<std::string, std::function<void(DemoForm&)>> ways = {
        {"close", [](DemoForm& open) { open.close(); }},
        {"done", [](DemoForm& open) { open.done(3); }},
        {"accept", [](DemoForm& open) { open.accept(); }},
        {"reject", [](DemoForm& open) { open.reject(); }},
        {"Escape", [](DemoForm& open) { open.press(Qt::Key_Escape); }},
        {"the cross",
         [](DemoForm& open) {
             QCloseEvent cross;
             QApplication::sendEvent(open.windowHandle(), &cross);
         }},
    };
    for (const auto& [way, close] : ways) {
        make();
        closings = 0;
        for (int time = 1; time <= 2; ++time) {
            form->present();
            close(*form);
            EXPECT_FALSE(form->isVisible()) << way;
            EXPECT_EQ(closings, time) << way;
        }
    }
}

TEST_F(Forms, AreHiddenAndHaveTheirResultWhenTheySayIt) {
    make().present();
    bool hidden = false;
    int result = 0;
    form->closed = [&] {
        hidden = form->isHidden();
        result = form->result();
    };
    form->done(7);
    EXPECT_TRUE(hidden);
    EXPECT_EQ(result, 7);
}

TEST_F(Forms, ThatAreNotOpenAreNotClosed) {
    make();
    form->close();
    form->done(1);
    form->present();
    form->hide();
    form->done(1);
    form->close();
    EXPECT_EQ(closings, 0);
}

TEST_F(Forms, SayNothingWhenTheyAreOnlyDestroyed) {
    make().present();
    form.reset();
    EXPECT_EQ(closings, 0);
}

TEST_F(Forms, ThatAreClosedAgainWhileTheySayItSayItOnce) {
    make().present();
    form->closed = [this] {
        ++closings;
        form->close();
        form->reject();
    };
    form->close();
    EXPECT_EQ(closings, 1);
}

TEST_F(Forms, NobodyListensToMayBeClosed) {
    make().present();
    form->closed = nullptr;
    form->close();
    EXPECT_FALSE(form->isVisible());
}

TEST_F(Forms, MayBeDeletedWhenTheySayIt) {
    for (const auto& close :
         {std::function<void(DemoForm&)>([](DemoForm& open) { open.press(Qt::Key_Escape); }),
          std::function<void(DemoForm&)>([](DemoForm& open) { open.done(0); })}) {
        make().present();
        auto kept = std::make_shared<int>(7); // by the function alone
        bool lives = false;
        form->closed = [this, held = std::exchange(kept, {}), &lives] {
            const std::weak_ptr<int> mine = held;
            bool& answer = lives;
            form.reset();
            answer = !mine.expired();
        };
        close(*form);
        EXPECT_EQ(form, nullptr);
        EXPECT_TRUE(lives);
    }
}

TEST_F(Forms, MayBeDeletedByTheReturnThatPressesTheirButton) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Space}) {
        make();
        auto* done = button<QPushButton>("done");
        QObject::connect(done, &QPushButton::clicked, form.get(), [this] { form->close(); });
        form->closed = [this] { form.reset(); };
        form->present();
        form->press(key);
        EXPECT_EQ(form, nullptr);
    }
}

TEST_F(Forms, DeletedBySomebodyElseAtTheirEndSayNothing) {
    make().present();
    QObject::connect(form.get(), &QDialog::finished, form.get(), [this] { form.reset(); });
    form->close();
    EXPECT_EQ(form, nullptr);
    EXPECT_EQ(closings, 0);
}

TEST_F(Forms, ThatAreToBeDeletedWhenTheyAreClosedSayItBefore) {
    make();
    const QPointer<DemoForm> made = form.release();
    made->setAttribute(Qt::WA_DeleteOnClose);
    made->present();
    made->press(Qt::Key_Escape);
    EXPECT_EQ(closings, 1);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(made, nullptr);
}

// A form may refuse.
class StubbornForm : public DemoForm {
  public:
    using DemoForm::DemoForm;

  protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

TEST_F(Forms, ThatRefuseToBeClosedStayOpenAndSayNothing) {
    StubbornForm stubborn(folder());
    stubborn.closed = [this] { ++closings; };
    stubborn.present();
    stubborn.press(Qt::Key_Escape);
    stubborn.close();
    EXPECT_TRUE(stubborn.isVisible());
    EXPECT_EQ(closings, 0);
}

} // namespace
} // namespace tabrova
