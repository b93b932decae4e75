// From the end of the pause after a key to the painted list of what was found: the library's lists in a
// window of the display, with so many songs. `key_to_paint SONGS TEXT`, 25 searches for the text and for the
// one that is a letter longer, in turn.
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "library/LibraryPane.h"
#include "platform/qt/Loop.h"
#include "platform/qt/Screen.h"

namespace {

constexpr int kSearches = 50;
constexpr int kTick = 10;

/// Artists of 50 songs, with names of made-up words.
std::string Words(int number, int count) {
    static const std::vector<std::string> syllables{"ra", "mo",  "vel", "tin", "sha",
                                                    "lo", "per", "nu",  "dri", "ka"};
    std::string text;
    for (int word = 0; word < count; ++word) {
        if (word > 0) text += ' ';
        for (int rest = number * 7919 + word * 104'729, i = 0; i < 3; ++i, rest /= 10)
            text += syllables[static_cast<std::size_t>(std::abs(rest) % 10)];
    }
    return text;
}

class Bench final : public QObject {
public:
    Bench(int songs, std::string text) : text_(std::move(text)) {
        std::vector<std::vector<std::string>> rows;
        for (int i = 1; i <= songs; ++i)
            rows.push_back(library_tests::Song(std::to_string(i), Words(i / 50, 2), Words(i, 3)));
        pane_.SeedSongs(rows);
        pane_.ListsRoom.Command1();
        pane_.SearchingRoom.CheckField(library::SearchField::Broad);
        Place(pane_.Lists.lstArtists, 0);
        Place(pane_.Lists.lstTracks, 4500);
        form_.Move(0, 0, 15'000, 10'500);
        form_.Add(pane_.Lists.lstArtists, pane_.Lists.lstTracks, pane_.Search.txtSearch);
        screen_.Adopt(form_);
        connect(&ticks_, &QTimer::timeout, this, [this] { Tick(); });
    }

    int Run() {
        QTimer::singleShot(0, [this] { form_.Show(); });
        QTimer::singleShot(1000, [this] { PressKey(); });
        return loop_.Run();
    }

protected:
    bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
        if (is_waiting_ && event->type() == QEvent::Paint) {
            is_waiting_ = false;
            // Runs when the paint and all that belongs to it are done.
            QTimer::singleShot(0, [this] { Note(); });
        }
        return false;
    }

private:
    static void Place(controls::ListBox& list, int left) { list.Move(left, 600, 4400, 9000); }

    void PressKey() {
        if (view_ == nullptr) {
            view_ = screen_.WidgetOf(pane_.Lists.lstTracks);
            for (QWidget* widget : view_->findChildren<QWidget*>())
                widget->installEventFilter(this);
            view_->installEventFilter(this);
        }
        pane_.Search.txtSearch.SetText(took_.size() % 2 == 0 ? text_ : text_ + "r");
        ticks_.start(kTick);
    }
    void Tick() {
        clock_.start();
        pane_.Search.tmrSearch.Tick.Raise();
        if (pane_.Search.tmrSearch.Enabled()) return;
        ticks_.stop();
        searched_.push_back(static_cast<double>(clock_.nsecsElapsed()) / 1e6);
        is_waiting_ = true;
    }
    void Note() {
        took_.push_back(static_cast<double>(clock_.nsecsElapsed()) / 1e6);
        if (took_.size() < kSearches) {
            PressKey();
            return;
        }
        std::sort(took_.begin(), took_.end());
        std::sort(searched_.begin(), searched_.end());
        std::printf(
            "pause to painted list: median %.1f ms, slowest %.1f ms; of it the search %.1f ms; %d tracks\n",
            took_[took_.size() / 2], took_.back(), searched_[searched_.size() / 2],
            pane_.Lists.lstTracks.ListCount());
        loop_.Quit();
    }

    std::string text_;
    qt::Loop loop_;
    qt::Application application_{"key_to_paint", loop_};
    library_tests::LibraryPane pane_;
    controls::Form form_{"frmBrowser", "Key to paint"};
    qt::Screen screen_{loop_, {}};
    QTimer ticks_;
    QElapsedTimer clock_;
    QWidget* view_ = nullptr;
    std::vector<double> took_;
    std::vector<double> searched_;
    bool is_waiting_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: key_to_paint SONGS TEXT\n");
        return EXIT_FAILURE;
    }
    return Bench(std::atoi(argv[1]), argv[2]).Run();
}
