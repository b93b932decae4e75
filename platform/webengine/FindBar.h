// Finding words in a page: a bar with a field, the count of matches, and buttons for the next and the one
// before.
//
// The engine counts and lights up by itself and answers later; an answer to what was asked before is dropped.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QWebEnginePage>

#include "platform/webengine/PageBars.h"

namespace webengine {

class FindBar final : public QObject {
public:
    FindBar(QWebEnginePage& page, PageBars& bars) : page_(page), bars_(bars) {}

    /// Opens the bar with the words that are selected in the page, or those of the last time, and gives it
    /// the keyboard.
    void Open();
    /// Goes on to the next match; opens the bar when there is nothing to find yet.
    void Next() { GoOn({}); }
    void Previous() { GoOn(QWebEnginePage::FindBackward); }
    bool IsOpen() const { return field_ != nullptr; }
    void Close();
    /// Another document: its matches are not counted yet.
    void OnDocument();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeBar();
    void GoOn(QWebEnginePage::FindFlags direction);
    void Search(QWebEnginePage::FindFlags direction);
    void ShowCount(const QString& words, bool is_nothing);
    void Clear();

    QWebEnginePage& page_;
    PageBars& bars_;
    QPointer<QLineEdit> field_;
    QPointer<QLabel> count_;
    QPointer<QPushButton> case_;
    QString last_words_;
    int serial_ = 0;
};

}  // namespace webengine
