// Prints a page: as a PDF file into the downloads, or on a printer of the system.
#pragma once

#include <QDialog>
#include <QObject>
#include <QPageLayout>
#include <QPointer>
#include <QPrinter>
#include <QWebEngineView>
#include <map>
#include <memory>

#include "platform/webengine/Downloads.h"

namespace webengine {

class Printing final : public QObject {
public:
    Printing(QWebEngineView& view, Downloads& downloads);
    /// Lets a PDF file that is being written be finished, for five seconds at most.
    ~Printing() override;

    /// Asks where to, unless it is being asked already. Nothing waits for the answer.
    void Ask();
    bool IsAsking() const { return box_ != nullptr; }

private:
    void Print(const QString& printer, const QPageLayout& layout);
    void WaitForFiles();
    void ToPdf(const QPageLayout& layout);
    void ToPrinter(const QString& name, const QPageLayout& layout);

    QPointer<QWebEngineView> view_;
    Downloads& downloads_;
    QPointer<QDialog> box_;
    /// The PDF files under way: path and id in the list.
    std::map<QString, int> files_;
    std::unique_ptr<QPrinter> printer_;
};

}  // namespace webengine
