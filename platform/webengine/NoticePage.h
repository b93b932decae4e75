// What a tab shows where no page can be shown: a few words that say why.
#pragma once

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/PageFactory.h"
#include "ports/BrowserControl.h"

namespace webengine {

/// Words in the middle of a dark ground, with a button below them if it is wanted.
class Notice final : public QWidget {
public:
    explicit Notice(const QString& words, QWidget* parent = nullptr);
    /// The button below the words; hidden until asked for.
    QPushButton& Button() { return *button_; }
    void SetWords(const QString& words) { words_->setText(words); }
    QString Words() const { return words_->text(); }

private:
    QLabel* words_;
    QPushButton* button_;
};

/// A page engine without pages. It goes nowhere; the notice fills the parent.
class NoticePage final : public QObject, public ports::BrowserControl {
public:
    NoticePage(const std::string& words, QWidget* parent)
        : notice_(new Notice(QString::fromStdString(words), parent)) {
        notice_->show();
    }
    // The notice goes with its parent, or here when it is to be forgotten before.
    ~NoticePage() override { delete notice_.data(); }

    void SetListener(ports::BrowserListener* listener) override { listener_ = listener; }
    void Navigate(std::string_view address) override;
    void GoBack() override {}
    void GoForward() override {}
    void Refresh() override {}
    std::string LocationURL() const override { return {}; }
    std::string LocationName() const override { return {}; }
    bool Busy() const override { return false; }

private:
    QPointer<Notice> notice_;
    ports::BrowserListener* listener_ = nullptr;
};

class NoticeFactory final : public qt::PageFactory {
public:
    explicit NoticeFactory(std::string words) : words_(std::move(words)) {}
    ports::BrowserControl* MakePage(controls::WebBrowser& control, QWidget* parent) override;
    void BeginUser(std::string_view /*name*/, bool /*keeps_history*/) override {}
    void EndUser() override { pages_.clear(); }
    void ForgetVisits() override { pages_.clear(); }

private:
    std::string words_;
    std::vector<std::unique_ptr<NoticePage>> pages_;
};

}  // namespace webengine
