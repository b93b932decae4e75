#include "platform/qt/QtBench.h"

#include <gtest/gtest.h>

#include <QTest>

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

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qt::Application application(argv[0], qt_tests::TheLoop());
    return RUN_ALL_TESTS();
}
