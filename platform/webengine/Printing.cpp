#include "platform/webengine/Printing.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTimer>
#include <QWebEnginePage>
#include <chrono>

#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

constexpr int kMostTitle = 60;
constexpr double kMarginMillimetres = 10;
constexpr std::chrono::seconds kLongestWait{5};

struct PrintWish {
    /// Empty: a PDF file.
    QString printer;
    QPageLayout layout;
};

class PrintBox final : public QDialog {
public:
    PrintBox(const QString& title, QWidget* parent);
    PrintWish Wish() const;

private:
    QComboBox* where_;
    QComboBox* paper_;
    QCheckBox* lying_;
};

PrintBox::PrintBox(const QString& title, QWidget* parent)
    : QDialog(parent), where_(new QComboBox(this)), paper_(new QComboBox(this)), lying_(new QCheckBox(this)) {
    setObjectName(QStringLiteral("print"));
    setWindowTitle(tr("Print"));
    setAttribute(Qt::WA_DeleteOnClose);
    where_->addItem(tr("PDF file, into the downloads"), QString());
    for (const QString& printer : QPrinterInfo::availablePrinterNames())
        where_->addItem(VisibleText(printer), printer);
    where_->setAccessibleName(tr("Printer"));
    for (const auto size : {QPageSize::A4, QPageSize::Letter, QPageSize::A3, QPageSize::A5, QPageSize::Legal})
        paper_->addItem(QPageSize::name(size), static_cast<int>(size));
    if (QLocale::system().measurementSystem() == QLocale::ImperialUSSystem) paper_->setCurrentIndex(1);
    paper_->setAccessibleName(tr("Paper"));
    lying_->setText(tr("Landscape"));
    auto* words = new QLabel(CutInTheMiddle(VisibleText(title), kMostTitle), this);
    words->setTextFormat(Qt::PlainText);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Print"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    constexpr int kMargin = 20;
    constexpr int kFieldWidth = 300;
    where_->setMinimumWidth(kFieldWidth);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    form->setVerticalSpacing(12);
    form->setHorizontalSpacing(16);
    form->setSizeConstraint(QLayout::SetFixedSize);
    form->addRow(words);
    form->addRow(tr("Printer"), where_);
    form->addRow(tr("Paper"), paper_);
    form->addRow(QString(), lying_);
    form->addRow(buttons);
}

PrintWish PrintBox::Wish() const {
    const QPageSize size(static_cast<QPageSize::PageSizeId>(paper_->currentData().toInt()));
    constexpr QMarginsF kMargins(kMarginMillimetres, kMarginMillimetres, kMarginMillimetres,
                                 kMarginMillimetres);
    return {where_->currentData().toString(),
            QPageLayout(size, lying_->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait, kMargins,
                        QPageLayout::Millimeter)};
}

}  // namespace

Printing::Printing(QWebEngineView& view, Downloads& downloads) : view_(&view), downloads_(downloads) {
    connect(&view, &QWebEngineView::pdfPrintingFinished, this, [this](const QString& path, bool ok) {
        const auto file = files_.find(path);
        if (file == files_.end()) return;
        const int id = file->second;
        files_.erase(file);
        downloads_.EndOwn(id, ok);
    });
    connect(&view, &QWebEngineView::printFinished, this, [this](bool /*ok*/) { printer_.reset(); });
}

Printing::~Printing() {
    delete box_.data();
    WaitForFiles();
    for (const auto& [path, id] : files_)
        downloads_.EndOwn(id, false);
}

// A page that goes while the engine writes its file takes the process along.
void Printing::WaitForFiles() {
    if (view_ == nullptr || files_.empty()) return;
    QEventLoop loop;
    QTimer::singleShot(kLongestWait, &loop, &QEventLoop::quit);
    connect(view_, &QObject::destroyed, &loop, &QEventLoop::quit);
    // After the handler that takes the file out.
    connect(view_, &QWebEngineView::pdfPrintingFinished, &loop, [this, &loop] {
        if (files_.empty()) loop.quit();
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void Printing::Ask() {
    if (view_ == nullptr || box_ != nullptr) return;
    auto* box = new PrintBox(view_->title(), view_);
    box_ = box;
    connect(box, &QDialog::accepted, this, [this, box] {
        const PrintWish wish = box->Wish();
        Print(wish.printer, wish.layout);
    });
    box->open();
}

void Printing::Print(const QString& printer, const QPageLayout& layout) {
    if (view_ == nullptr) return;
    if (printer.isEmpty()) {
        ToPdf(layout);
    } else {
        ToPrinter(printer, layout);
    }
}

void Printing::ToPdf(const QPageLayout& layout) {
    const QString title = view_->title().isEmpty() ? tr("Page") : view_->title();
    const Download file = downloads_.BeginOwn(title + QStringLiteral(".pdf"), view_->page());
    if (!file.IsActive()) return;
    files_[file.path] = file.id;
    view_->printToPdf(file.path, layout);
}

// The engine draws on the printer until it reports the end.
void Printing::ToPrinter(const QString& name, const QPageLayout& layout) {
    if (printer_ != nullptr) return;
    printer_ = std::make_unique<QPrinter>(QPrinterInfo::printerInfo(name));
    printer_->setPageLayout(layout);
    printer_->setDocName(view_->title());
    view_->print(printer_.get());
}

}  // namespace webengine
