#include "platform/webengine/DownloadsWindow.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/SkinSheet.h"
#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

namespace skin = qt::skin;

constexpr int kWidth = 640;
constexpr int kHeight = 460;
constexpr int kMargin = 16;
constexpr int kFollowMilliseconds = 150;
constexpr int kSpeedMilliseconds = 1000;
constexpr int kMostName = 70;
constexpr int kParts = 1000;

QString StyleOfWindow() {
    return QStringLiteral(
               "#downloads, #list, #rows { background: @ground; }"
               "QScrollArea { border: 1px solid @ground; }"
               "QScrollArea:focus { border-color: @accent; }"
               "QLabel { color: @text; font-size: 13px; }"
               "QLabel#heading { font-size: 17px; }"
               "QLabel#muted, QLabel#words { color: @muted; font-size: 12px; }"
               "QLabel#asks { color: @warning; font-size: 12px; }"
               "QProgressBar { background: @well; border: 0; border-radius: 2px; }"
               "QProgressBar::chunk { background: @accent; border-radius: 2px; }"
               "QPushButton { color: @text; padding: 3px 10px; font-size: 12px; }"
               "QPushButton[accent=\"true\"] { color: @accent; }") +
           skin::kButtonSheet;
}

QString AskingWords(const Download& download) {
    const QString words = Downloads::tr("A file of this kind can harm the computer. Keep it?");
    return download.IsActive() ? words + QStringLiteral("  ") + DownloadWords(download, 0) : words;
}

}  // namespace

DownloadRow::DownloadRow(Downloads& downloads, int id, QWidget* parent)
    : QWidget(parent),
      downloads_(downloads),
      id_(id),
      name_(new QLabel(this)),
      words_(new QLabel(this)),
      bar_(new QProgressBar(this)),
      buttons_(new QHBoxLayout) {
    setObjectName(QStringLiteral("download"));
    name_->setTextFormat(Qt::PlainText);
    name_->setObjectName(QStringLiteral("name"));
    words_->setTextFormat(Qt::PlainText);
    words_->setWordWrap(true);
    bar_->setTextVisible(false);
    bar_->setFixedHeight(4);
    bar_->setMaximum(kParts);
    buttons_->setSpacing(6);
    auto* lower = new QHBoxLayout;
    lower->setSpacing(12);
    lower->addWidget(words_, 1);
    lower->addLayout(buttons_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 10, 12, 10);
    column->setSpacing(6);
    column->addWidget(name_);
    column->addWidget(bar_);
    column->addLayout(lower);
}

void DownloadRow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(skin::Colours().line));
    painter.setBrush(QColor(skin::Colours().panel));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 7, 7);
}

void DownloadRow::Update(const Download& download) {
    name_->setText(CutInTheMiddle(VisibleText(download.Name()), kMostName));
    name_->setToolTip(download.address.isEmpty() ? QString() : ShownAddress(download.address));
    const QString words =
        download.Asks() ? AskingWords(download) : DownloadWords(download, downloads_.Speed(id_));
    words_->setText(VisibleText(words));
    setAccessibleName(VisibleText(download.Name()) + QStringLiteral(", ") + words_->text());
    bar_->setVisible(download.IsActive());
    bar_->setMaximum(download.total > 0 ? kParts : 0);
    if (download.total > 0)
        bar_->setValue(static_cast<int>(static_cast<double>(download.received) /
                                        static_cast<double>(download.total) * kParts));
    const QString shown =
        QStringLiteral("%1 %2").arg(static_cast<int>(download.state)).arg(download.Asks()) + download.path;
    if (shown == shown_) return;
    shown_ = shown;
    words_->setObjectName(download.Asks() || download.state == DownloadState::Failed
                              ? QStringLiteral("asks")
                              : QStringLiteral("words"));
    words_->setStyleSheet(QString());
    ShowButtons(download);
}

void DownloadRow::ShowButtons(const Download& download) {
    const bool had_keyboard = isAncestorOf(QApplication::focusWidget());
    while (QLayoutItem* item = buttons_->takeAt(0)) {
        // The button that was pressed may be the one that goes.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    if (download.Asks()) {
        AddButton(tr("Keep"), download, &Downloads::Keep);
        AddButton(tr("Discard"), download, &Downloads::Discard, Kind::Accent);
    } else if (download.state == DownloadState::Running) {
        AddButton(tr("Pause"), download, &Downloads::Pause);
        AddButton(tr("Cancel"), download, &Downloads::Cancel);
    } else if (download.state == DownloadState::Paused) {
        AddButton(tr("Resume"), download, &Downloads::Resume, Kind::Accent);
        AddButton(tr("Cancel"), download, &Downloads::Cancel);
    } else {
        ShowButtonsOfOneThatIsOver(download);
    }
    if (had_keyboard && buttons_->count() > 0) buttons_->itemAt(0)->widget()->setFocus();
}

void DownloadRow::ShowButtonsOfOneThatIsOver(const Download& download) {
    if (downloads_.CanPlay(download)) {
        AddButton(tr("Play"), download, &Downloads::Play, Kind::Accent);
        AddButton(tr("Add to library"), download, &Downloads::AddToLibrary);
    }
    if (Downloads::CanOpen(download)) AddButton(tr("Open"), download, &Downloads::Open);
    if (download.state == DownloadState::Done) {
        AddButton(tr("Show in folder"), download, &Downloads::ShowInFolder);
    } else if (!download.address.isEmpty()) {
        AddButton(tr("Retry"), download, &Downloads::Retry, Kind::Accent);
    }
    AddButton(tr("Remove"), download, &Downloads::Remove);
}

void DownloadRow::AddButton(const QString& words, const Download& download, void (Downloads::*act)(int),
                            Kind kind) {
    auto* button = new QPushButton(words, this);
    button->setProperty("accent", kind == Kind::Accent);
    button->setAccessibleName(words + QLatin1Char(' ') + VisibleText(download.Name()));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, act] { (downloads_.*act)(id_); });
    buttons_->addWidget(button);
    button->show();
}

DownloadsWindow::DownloadsWindow(Downloads& downloads) : downloads_(downloads) {
    setObjectName(QStringLiteral("downloads"));
    setWindowTitle(tr("Downloads"));
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    skin::Dress(*this, StyleOfWindow());
    resize(kWidth, kHeight);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(12);
    column->addWidget(MakeHead());
    column->addWidget(MakeList(), 1);
    soon_.setSingleShot(true);
    soon_.setInterval(kFollowMilliseconds);
    connect(&soon_, &QTimer::timeout, this, [this] { Update(); });
    speed_.setInterval(kSpeedMilliseconds);
    connect(&speed_, &QTimer::timeout, this, [this] { Update(); });
}

QWidget* DownloadsWindow::MakeHead() {
    auto* head = new QWidget(this);
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    auto* heading = new QLabel(tr("Downloads"), head);
    heading->setObjectName(QStringLiteral("heading"));
    auto* folder = new QLabel(CutInTheMiddle(VisibleText(downloads_.Folder()), kMostName), head);
    folder->setObjectName(QStringLiteral("muted"));
    folder->setTextFormat(Qt::PlainText);
    words->addWidget(heading);
    words->addWidget(folder);
    row->addLayout(words, 1);
    auto* open = new QPushButton(tr("Open folder"), head);
    connect(open, &QPushButton::clicked, this, [this] { downloads_.OpenFolder(); });
    clear_ = new QPushButton(tr("Clear list"), head);
    clear_->setToolTip(tr("Takes what is over out of the list; the files stay."));
    connect(clear_, &QPushButton::clicked, this, [this] { downloads_.RemoveThoseOver(); });
    row->addWidget(open);
    row->addWidget(clear_);
    return head;
}

QWidget* DownloadsWindow::MakeList() {
    auto* area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("list"));
    area->setAccessibleName(QStringLiteral("Downloads"));
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* rows = new QWidget(area);
    rows->setObjectName(QStringLiteral("rows"));
    rows_layout_ = new QVBoxLayout(rows);
    rows_layout_->setContentsMargins(0, 0, 4, 0);
    rows_layout_->setSpacing(8);
    nothing_ = new QLabel(tr("Nothing has been downloaded yet."), rows);
    nothing_->setObjectName(QStringLiteral("muted"));
    nothing_->setAlignment(Qt::AlignCenter);
    rows_layout_->addWidget(nothing_);
    rows_layout_->addStretch(1);
    area->setWidget(rows);
    return area;
}

// Over the window that the user looks at, the first time; later where the user has put it.
void DownloadsWindow::Present() {
    Update();
    const QWidget* const below = QApplication::activeWindow();
    if (!testAttribute(Qt::WA_Moved) && !isVisible() && below != nullptr && below != this)
        move(below->geometry().center() - rect().center());
    show();
    raise();
    activateWindow();
}

void DownloadsWindow::Follow() {
    if (isVisible() && !soon_.isActive()) soon_.start();
}

DownloadRow* DownloadsWindow::RowOf(int id) const {
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [id](const DownloadRow* row) { return row->Id() == id; });
    return found == rows_.end() ? nullptr : *found;
}

void DownloadsWindow::Update() {
    Arrange();
    const std::vector<Download>& all = downloads_.List().All();
    bool is_one_active = false;
    for (const Download& download : all) {
        RowOf(download.id)->Update(download);
        is_one_active = is_one_active || download.IsActive();
    }
    nothing_->setVisible(all.empty());
    clear_->setEnabled(!all.empty());
    // A download that stalls reports nothing, and its speed has to be seen to go down.
    if (is_one_active && isVisible()) {
        if (!speed_.isActive()) speed_.start();
    } else {
        speed_.stop();
    }
}

void DownloadsWindow::Arrange() {
    const std::vector<Download>& all = downloads_.List().All();
    std::erase_if(rows_, [&all](DownloadRow* row) {
        const bool is_gone = std::none_of(
            all.begin(), all.end(), [row](const Download& download) { return download.id == row->Id(); });
        if (is_gone) {
            row->hide();
            row->deleteLater();
        }
        return is_gone;
    });
    int place = 0;
    for (const Download& download : all) {
        DownloadRow* row = RowOf(download.id);
        if (row == nullptr) {
            row = new DownloadRow(downloads_, download.id, rows_layout_->parentWidget());
            rows_.push_back(row);
            rows_layout_->insertWidget(place, row);
        }
        ++place;
    }
}

void DownloadsWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

}  // namespace webengine
