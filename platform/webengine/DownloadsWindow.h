// The window with the list of downloads, the newest first.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

#include "platform/webengine/Downloads.h"

class QHBoxLayout;
class QVBoxLayout;

namespace webengine {

/// One download: its name, how far it is, and what can be done with it now.
class DownloadRow final : public QWidget {
public:
    DownloadRow(Downloads& downloads, int id, QWidget* parent);

    int Id() const { return id_; }
    void Update(const Download& download);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    enum class Kind { Plain, Accent };
    void ShowButtons(const Download& download);
    void ShowButtonsOfOneThatIsOver(const Download& download);
    void AddButton(const QString& words, const Download& download, void (Downloads::*act)(int),
                   Kind kind = Kind::Plain);

    Downloads& downloads_;
    int id_;
    QLabel* name_;
    QLabel* words_;
    QProgressBar* bar_;
    QHBoxLayout* buttons_;
    QString shown_;
};

class DownloadsWindow final : public QWidget {
public:
    explicit DownloadsWindow(Downloads& downloads);

    /// Shows it in front, with the keyboard in it.
    void Present();
    /// The list changed; the rows follow shortly.
    void Follow();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* MakeHead();
    QWidget* MakeList();
    void Update();
    void Arrange();
    DownloadRow* RowOf(int id) const;

    Downloads& downloads_;
    QVBoxLayout* rows_layout_ = nullptr;
    QLabel* nothing_ = nullptr;
    QPushButton* clear_ = nullptr;
    std::vector<DownloadRow*> rows_;
    QTimer soon_;
    QTimer speed_;
};

}  // namespace webengine
