#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <array>

#include "platform/qt/Boxes.h"
#include "platform/qt/QtBench.h"

namespace {

/// Does something to the box as soon as it is open.
void WhenOpen(const std::function<void(QDialog&)>& act) {
    QTimer::singleShot(0, [act] {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        act(*box);
    });
}

void Press(QDialog& box, const char* caption) {
    for (QPushButton* button : box.findChildren<QPushButton*>()) {
        if (button->text().remove('&') == QLatin1String(caption)) QTest::mouseClick(button, Qt::LeftButton);
    }
}

class BoxesTest : public testing::Test {
protected:
    ports::Dialogs& Boxes() { return boxes_; }

private:
    qt::Boxes boxes_{qt_tests::TheLoop()};
};

/// A folder with a song, a note and a song in capitals.
class OpenFilesTest : public BoxesTest {
protected:
    OpenFilesTest() {
        for (const char* name : {"a.mp3", "b.MP3", "notes.txt"}) {
            QFile file(folder_.filePath(QLatin1String(name)));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }
    std::string In(const char* name) const {
        return QFile::encodeName(folder_.filePath(QLatin1String(name))).toStdString();
    }
    std::vector<std::string> Ask() {
        static constexpr std::array<std::string_view, 2> kEndings{".mp3", ".wav"};
        return Boxes().OpenFiles("Open Media File", "Media files", kEndings);
    }
    /// Chooses files of the folder by their names, each between quotes.
    void WillChoose(const QString& names) {
        WhenOpen([this, names](QDialog& box) {
            auto& dialog = dynamic_cast<QFileDialog&>(box);
            shown_title_ = dialog.windowTitle();
            filters_ = dialog.nameFilters();
            began_in_ = dialog.directory().path();
            dialog.setDirectory(folder_.path());
            dialog.findChild<QLineEdit*>()->setText(names);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    }

    QTemporaryDir folder_;
    QString shown_title_;
    QStringList filters_;
    QString began_in_;
};

TEST_F(OpenFilesTest, EveryChosenFileComesAsItsPath) {
    WillChoose("\"a.mp3\" \"b.MP3\"");

    EXPECT_EQ(Ask(), (std::vector<std::string>{In("a.mp3"), In("b.MP3")}));
    EXPECT_EQ(shown_title_, "Open Media File");
    EXPECT_EQ(filters_, (QStringList{"Media files (*.mp3 *.wav)", "All files (*)"}));
}

TEST_F(OpenFilesTest, TheNextQuestionBeginsWhereTheLastEnded) {
    WillChoose("a.mp3");
    Ask();

    WillChoose("b.MP3");
    Ask();

    EXPECT_EQ(began_in_, folder_.path());
}

TEST_F(OpenFilesTest, CancelChoosesNothing) {
    WhenOpen([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });

    EXPECT_TRUE(Ask().empty());
}

TEST_F(BoxesTest, ABoxShowsItsTextAndTitleLetterForLetter) {
    QString text;
    QString title;
    WhenOpen([&](QDialog& box) {
        text = box.findChild<QLabel*>("text")->text();
        title = box.windowTitle();
        Press(box, "OK");
    });

    const ports::BoxAnswer answer = Boxes().MsgBox("First & <b>line</b>\r\nSecond", ports::BoxButtons::Ok,
                                                   "Title", ports::BoxIcon::Information);

    EXPECT_EQ(answer, ports::BoxAnswer::Ok);
    EXPECT_EQ(text, "First & <b>line</b>\nSecond");
    EXPECT_EQ(title, "Title");
}

TEST_F(BoxesTest, AnEmptyTitleIsTheProgramsName) {
    QString title;
    WhenOpen([&](QDialog& box) {
        title = box.windowTitle();
        box.reject();
    });

    Boxes().MsgBox("Text");

    EXPECT_EQ(title, "Brindlepost");
}

TEST_F(BoxesTest, YesAndNoAreAnsweredByTheirButtons) {
    WhenOpen([](QDialog& box) { Press(box, "Yes"); });
    EXPECT_EQ(Boxes().MsgBox("Sure?", ports::BoxButtons::YesNo), ports::BoxAnswer::Yes);

    WhenOpen([](QDialog& box) { Press(box, "No"); });
    EXPECT_EQ(Boxes().MsgBox("Sure?", ports::BoxButtons::YesNo), ports::BoxAnswer::No);
}

TEST_F(BoxesTest, EscapeAnswersNoAndEnterTheFirstButton) {
    WhenOpen([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(Boxes().MsgBox("Sure?", ports::BoxButtons::YesNo), ports::BoxAnswer::No);

    WhenOpen([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(Boxes().MsgBox("Sure?", ports::BoxButtons::YesNo), ports::BoxAnswer::Yes);
}

TEST_F(BoxesTest, ALongTextScrollsAndTheBoxStaysOnTheScreen) {
    std::string text;
    for (int i = 0; i < 500; ++i)
        text += "C:\\Music\\A file with a long name.mp3\r\n";
    int height = 0;
    WhenOpen([&](QDialog& box) {
        height = box.height();
        box.accept();
    });

    Boxes().MsgBox(text);

    EXPECT_GT(height, 100);
    EXPECT_LT(height, 500);
}

TEST_F(BoxesTest, ALongTextIsScrolledAndCopiedWithTheKeyboard) {
    std::string text = "The following songs could not be added:\r\n";
    for (int i = 1; i <= 500; ++i)
        text += "Artist - Title " + std::to_string(i) + "\r\n";
    QString copied;
    bool scrolled = false;
    WhenOpen([&](QDialog& box) {
        auto* view = box.findChild<QPlainTextEdit*>("text");
        ASSERT_NE(view, nullptr);
        EXPECT_TRUE(view->isReadOnly());
        view->setFocus();
        QTest::keyClick(view, Qt::Key_End, Qt::ControlModifier);
        scrolled = view->verticalScrollBar()->value() > 0;
        QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
        copied = QApplication::clipboard()->text();
        QTest::keyClick(view, Qt::Key_X);
        EXPECT_EQ(view->toPlainText(), copied);
        QTest::keyClick(view, Qt::Key_Return);
    });

    const ports::BoxAnswer answer = Boxes().MsgBox(text);

    EXPECT_EQ(answer, ports::BoxAnswer::Ok);
    EXPECT_TRUE(scrolled);
    EXPECT_TRUE(copied.startsWith("The following songs could not be added:\nArtist - Title 1\n"));
    EXPECT_TRUE(copied.endsWith("Artist - Title 500\n"));
}

TEST_F(BoxesTest, AHundredThousandLinesDoNotKeepTheBoxWaiting) {
    std::string text;
    for (int i = 1; i <= 100'000; ++i)
        text += "Some artist with a name - Some title of a song " + std::to_string(i) + "\r\n";
    QElapsedTimer timer;
    qint64 opened = -1;
    WhenOpen([&](QDialog& box) {
        opened = timer.elapsed();
        box.accept();
    });
    timer.start();

    Boxes().MsgBox(text);

    EXPECT_GE(opened, 0);
    EXPECT_LT(opened, 10'000);
}

TEST_F(BoxesTest, AnInputBoxGivesWhatWasTyped) {
    QString offered;
    WhenOpen([&](QDialog& box) {
        auto* edit = box.findChild<QLineEdit*>("input");
        offered = edit->text();
        QTest::keyClicks(edit, "New");
        QTest::keyClick(edit, Qt::Key_Return);
    });

    const std::string typed = Boxes().InputBox("What?", "Title", "Old");

    EXPECT_EQ(offered, "Old");
    EXPECT_EQ(typed, "New");
}

TEST_F(BoxesTest, ACancelledInputBoxGivesTheEmptyText) {
    WhenOpen([](QDialog& box) { Press(box, "Cancel"); });

    EXPECT_EQ(Boxes().InputBox("What?", "Title", "Old"), "");
}

TEST_F(BoxesTest, TimersGoOnWhileABoxIsOpen) {
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&ticks] {
        if (++ticks == 3) QApplication::activeModalWidget()->close();
    });
    timer.start(1);

    Boxes().MsgBox("Wait");

    EXPECT_GE(ticks, 3);
}

TEST_F(BoxesTest, AnEndingProgramTakesItsBoxesWithIt) {
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });

    EXPECT_EQ(Boxes().MsgBox("Sure?", ports::BoxButtons::YesNo), ports::BoxAnswer::No);
}

}  // namespace
