// The page engine in a bare window: what pages, tabs and their memory cost before the program does anything.
//
// An address and Enter open a page in front of those before; Ctrl+Tab brings the oldest forward.
#include <QApplication>
#include <QLineEdit>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineView>

namespace {

class Pages final : public QWidget {
public:
    Pages() {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(&address_);
        layout->addWidget(&stack_, 1);
        connect(&address_, &QLineEdit::returnPressed, this, [this] { Open(); });
        auto* oldest = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Tab")), this);
        connect(oldest, &QShortcut::activated, this, [this] { stack_.setCurrentIndex(0); });
        setWindowTitle(QStringLiteral("Bare pages"));
    }

    // Pages go before their profile.
    ~Pages() override {
        while (QWidget* view = stack_.widget(0))
            delete view;
    }

private:
    void Open() {
        auto* view = new QWebEngineView;
        view->setPage(new QWebEnginePage(&profile_, view));
        // The keyboard stays in the row, as in the program.
        view->settings()->setAttribute(QWebEngineSettings::FocusOnNavigationEnabled, false);
        stack_.addWidget(view);
        stack_.setCurrentWidget(view);
        view->load(QUrl(address_.text()));
        address_.clear();
        address_.setFocus();
    }

    QWebEngineProfile profile_;
    QLineEdit address_;
    QStackedWidget stack_;
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    Pages window;
    window.resize(1180, 780);
    window.show();
    return QApplication::exec();
}
