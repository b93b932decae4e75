// Loop, boxes and the window's shape on real windows keep to their contracts.
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <chrono>

#include "contracts/DialogsContract.h"
#include "contracts/EventLoopContract.h"
#include "contracts/WindowShapeContract.h"
#include "controls/Form.h"
#include "platform/qt/Boxes.h"
#include "platform/qt/DesktopWindows.h"
#include "platform/qt/QtBench.h"

namespace contracts {
namespace {

class QtDialogsBench final : public DialogsBench {
public:
    ports::Dialogs& Dialogs() override { return boxes_; }
    void WillAnswer(ports::BoxAnswer answer) override {
        const char* caption = answer == ports::BoxAnswer::Ok    ? "OK"
                              : answer == ports::BoxAnswer::Yes ? "Yes"
                                                                : "No";
        WhenOpen([caption](QDialog& box) { Press(box, caption); });
    }
    void WillClose() override {
        WhenOpen([](QDialog& box) { box.close(); });
    }
    void WillType(std::string_view text) override {
        WhenOpen([text = std::string(text)](QDialog& box) {
            box.findChild<QLineEdit*>("input")->setText(QString::fromStdString(text));
            Press(box, "OK");
        });
    }
    std::string ShownText() const override { return text_; }
    std::string ShownTitle() const override { return title_; }
    std::string OfferedText() const override { return offered_; }

private:
    static void Press(QDialog& box, const char* caption) {
        for (QPushButton* button : box.findChildren<QPushButton*>()) {
            if (button->text().remove('&') == QLatin1String(caption)) button->click();
        }
    }

    void WhenOpen(std::function<void(QDialog&)> act) {
        QTimer::singleShot(0, [this, act = std::move(act)] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            text_ = box->findChild<QLabel*>("text")->text().toStdString();
            title_ = box->windowTitle().toStdString();
            const auto* edit = box->findChild<QLineEdit*>("input");
            if (edit != nullptr) offered_ = edit->text().toStdString();
            act(*box);
        });
    }

    std::string text_;
    std::string title_;
    std::string offered_;
    qt::Boxes boxes_{qt_tests::TheLoop()};
};

/// Runs a handler as an event.
class Runner final : public QObject {
public:
    explicit Runner(std::function<void()> handler) : handler_(std::move(handler)) {}
    bool event(QEvent* event) override {
        if (event->type() != QEvent::User) return QObject::event(event);
        handler_();
        return true;
    }

private:
    std::function<void()> handler_;
};

// The application object keeps one loop for the whole program, so every test gets a program of its own from
// the runner of the tests.
class QtLoopBench final : public EventLoopBench {
public:
    QtLoopBench() : screen_(qt_tests::TheLoop(), {}) {}
    ports::EventLoop& Loop() override { return qt_tests::TheLoop(); }
    void Adopt(controls::Form& form) override { screen_.Adopt(form); }
    void Run(std::function<void()> handler) override {
        Runner runner(std::move(handler));
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(&runner, &event);
    }
    void Post(std::function<void()> handler) override {
        runners_.push_back(std::make_unique<Runner>(std::move(handler)));
        QCoreApplication::postEvent(runners_.back().get(), new QEvent(QEvent::User));
    }
    bool YieldUntil(const std::function<bool()>& done) override {
        const auto start = std::chrono::steady_clock::now();
        while (!done() && std::chrono::steady_clock::now() - start < std::chrono::seconds(5)) {
            qt_tests::TheLoop().Yield();
        }
        return done();
    }
    void AskToEnd() override { qt_tests::TheLoop().Quit(); }

private:
    qt::Screen screen_;
    std::vector<std::unique_ptr<Runner>> runners_;
};

class QtShapeBench final : public WindowShapeBench {
public:
    ports::WindowShape& Shape() override { return shape_; }
    void EndHandler() override { desk_.screen.CatchUp(); }
    bool HasPixel(int x, int y) override {
        const QRegion mask = desk_.screen.WindowOf(desk_.form)->mask();
        // The border of 2 and the title of 24 pixels are outside of the widget.
        return mask.isEmpty() || mask.contains(QPoint(x - 2, y - 24));
    }

private:
    qt_tests::Desk desk_;
    qt::MainWindowShape shape_{desk_.screen, desk_.form};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, DialogsContract, QtDialogsBench);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, EventLoopContract, QtLoopBench);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, WindowShapeContract, QtShapeBench);

}  // namespace
}  // namespace contracts
