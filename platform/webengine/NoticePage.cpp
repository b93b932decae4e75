#include "platform/webengine/NoticePage.h"

#include <QTimer>
#include <QVBoxLayout>

#include "platform/qt/SkinSheet.h"

namespace webengine {

namespace {

constexpr int kWordsWidth = 520;
constexpr int kPageRefused = -1;

}  // namespace

Notice::Notice(const QString& words, QWidget* parent)
    : QWidget(parent), words_(new QLabel(words, this)), button_(new QPushButton(this)) {
    setObjectName(QStringLiteral("notice"));
    setAttribute(Qt::WA_StyledBackground);
    qt::skin::Dress(
        *this, QStringLiteral("#notice { background: @ground; } QLabel { color: @text; font-size: 13px; }"
                              "QPushButton { background: @raised; color: @accent; border: 1px solid @line;"
                              " border-radius: 6px; padding: 6px 18px; }"
                              "QPushButton:focus { border-color: @accent; }"));
    words_->setWordWrap(true);
    words_->setAlignment(Qt::AlignCenter);
    words_->setFixedWidth(kWordsWidth);
    words_->setTextFormat(Qt::PlainText);
    button_->hide();
    auto* column = new QVBoxLayout(this);
    column->addStretch();
    // Not aligned: the layout asks a wrapped text for its height only where it may give it all its width.
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(words_);
    row->addStretch();
    column->addLayout(row);
    column->addSpacing(16);
    column->addWidget(button_, 0, Qt::AlignCenter);
    column->addStretch();
}

void NoticePage::Navigate(std::string_view address) {
    if (address.empty()) return;
    QTimer::singleShot(0, this, [this, asked = std::string(address)] {
        if (listener_ != nullptr) listener_->OnNavigateError(asked, kPageRefused);
    });
}

ports::BrowserControl* NoticeFactory::MakePage(controls::WebBrowser& /*control*/, QWidget* parent) {
    pages_.push_back(std::make_unique<NoticePage>(words_, parent));
    return pages_.back().get();
}

}  // namespace webengine
