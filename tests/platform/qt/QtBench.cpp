#include "platform/qt/QtBench.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>
#include <memory>

namespace qt_tests {

qt::Loop& TheLoop() {
    static qt::Loop loop;
    return loop;
}

bool WaitFor(const std::function<bool()>& done) {
    return QTest::qWaitFor(done, 5000);
}

void Desk::Open() {
    screen.Adopt(form);
    form.Show();
    screen.CatchUp();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(screen.WindowOf(form)));
}

void PlaceAt(controls::Control& control, int left, int top, int width, int height) {
    constexpr double kTwips = controls::kTwipsPerPixel;
    control.Move(left * kTwips, top * kTwips, width * kTwips, height * kTwips);
}

}  // namespace qt_tests

namespace {

// A program that was told to exit runs no loop any more, until the next run of the whole.
class ExitForgetter final : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& /*test*/) override {
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    }
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qt::Application application(argv[0], qt_tests::TheLoop());
    testing::UnitTest::GetInstance()->listeners().Append(std::make_unique<ExitForgetter>().release());
    return RUN_ALL_TESTS();
}
