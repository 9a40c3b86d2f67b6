#include "platform/queue_job.h"

#include <QPageLayout>
#include <QPainter>
#include <QPrintEngine>
#include <QPrinterInfo>
#include <algorithm>
#include <deque>
#include <set>

#include "core/constants.h"
#include "display/drawing_record.h"
#include "platform/graphics_application.h"
#include "platform/paper_device.h"

namespace korvet {
namespace {

constexpr int LastSystemNumber = 255;
constexpr int FirstOwnNumber = 1000;

/// The paper of a queue as the program has it. `index` is its place in the queue's list.
Paper PaperOf(const QPageSize& size, int index) {
    const QSizeF millimetres = size.size(QPageSize::Millimeter);
    const int number = size.windowsId();
    return {number > 0 && number <= LastSystemNumber ? number : FirstOwnNumber + index,
            size.name().toStdString(), millimetres.width(), millimetres.height()};
}

/// The option that keeps the spooler from scaling a sheet to what it takes for the paper.
void ForbidScaling(QPrinter& printer) {
    constexpr auto SpoolerOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);
    printer.printEngine()->setProperty(SpoolerOptions,
                                       QStringList{QStringLiteral("print-scaling"), QStringLiteral("none")});
}

/// The page size of a paper in the queue's own list. Throws PrintError.
QPageSize PageSizeOf(const QPrinterInfo& queue, const SheetSetup& setup) {
    const std::vector<Paper> papers = PapersOf(queue);
    const auto found = std::find(papers.begin(), papers.end(), setup.paper);
    if (found == papers.end()) {
        throw PrintError("The printer \"" + setup.printer + "\" does not have the paper \"" +
                         setup.paper.name + "\".");
    }
    return queue.supportedPageSizes().at(static_cast<qsizetype>(found - papers.begin()));
}

/// A printer set to the sheet, with its origin in the corner of the printable area. Throws PrintError.
std::unique_ptr<QPrinter> PrinterFor(const SheetSetup& setup) {
    const QPrinterInfo queue = QPrinterInfo::printerInfo(QString::fromStdString(setup.printer));
    if (queue.isNull()) {
        throw PrintError("The printer \"" + setup.printer + "\" is gone.");
    }
    const QPageSize size = PageSizeOf(queue, setup);
    auto printer = std::make_unique<QPrinter>(queue, QPrinter::HighResolution);
    printer->setFullPage(false);
    const bool set = printer->setPageSize(size) &&
                     printer->setPageOrientation(setup.orientation == Landscape ? QPageLayout::Landscape
                                                                                : QPageLayout::Portrait);
    const QPageLayout layout = printer->pageLayout();
    if (!set || !layout.pageSize().isEquivalentTo(size) ||
        !printer->setPageMargins(layout.minimumMargins(), layout.units())) {
        throw PrintError("The printer \"" + setup.printer + "\" does not take the paper \"" +
                         setup.paper.name + "\".");
    }
    return printer;
}

PrintableArea AreaOf(const QPrinter& printer) {
    const QRectF area = printer.pageLayout().paintRect(QPageLayout::Millimeter);
    return {area.width(), area.height()};
}

PixelSize DotsOf(const PrintableArea& area) {
    constexpr double DotsPerMillimetre = PaperDotsPerInch / MillimetresPerInch;
    return {area.width * DotsPerMillimetre, area.height * DotsPerMillimetre};
}

class QueueJob final : public PrintJob {
  public:
    QueueJob(const SheetSetup& setup, const std::string& title)
        : setup_(setup), title_(title), paper_(nullptr, DotsOf(QueueArea(setup))) {}

    DrawingDevice& NewPage() override { return sheets_.emplace_back(paper_); }

    void EndDoc() override {
        const std::unique_ptr<QPrinter> printer = PrinterFor(setup_);
        printer->setDocName(QString::fromStdString(title_));
        printer->setCreator(QString::fromUtf8(ProductTitle.data(), ProductTitle.size()));
        ForbidScaling(*printer);
        QPainter painter;
        const EndingReserve reserve;
        if (sheets_.empty() || !painter.begin(printer.get())) {
            throw PrintError("The printer \"" + setup_.printer + "\" does not begin the document.");
        }
        for (std::size_t i = 0; i < sheets_.size(); ++i) {
            if (i > 0 && !printer->newPage()) {
                throw PrintError("The printer \"" + setup_.printer + "\" does not go on with the document.");
            }
            painter.resetTransform();
            painter.scale(static_cast<double>(printer->logicalDpiX()) / PaperDotsPerInch,
                          static_cast<double>(printer->logicalDpiY()) / PaperDotsPerInch);
            PrepareDrawing(painter);
            PaperDevice sheet(&painter, paper_.ScaleSize());
            sheets_[i].PlayOn(sheet);
            sheet.Finish();
        }
        if (!painter.end() || printer->printerState() == QPrinter::Error) {
            throw PrintError("The printer \"" + setup_.printer + "\" did not take the document.");
        }
    }

  private:
    SheetSetup setup_;
    std::string title_;
    PaperDevice paper_;                 ///< what the sheets measure by
    std::deque<DrawingRecord> sheets_;  ///< each stays where it is
};

}  // namespace

std::vector<Paper> PapersOf(const QPrinterInfo& queue) {
    std::vector<Paper> papers;
    std::set<int> numbers;
    std::set<std::string> names;
    int index = 0;
    for (const QPageSize& size : queue.supportedPageSizes()) {
        Paper paper = PaperOf(size, index);
        if (!numbers.insert(paper.number).second) {
            paper.number = FirstOwnNumber + index;
        }
        if (!names.insert(paper.name).second) {
            paper.name += " (" + size.key().toStdString() + ")";
        }
        papers.push_back(paper);
        ++index;
    }
    return papers;
}

PrintableArea QueueArea(const SheetSetup& setup) {
    return AreaOf(*PrinterFor(setup));
}

std::unique_ptr<PrintJob> StartQueueJob(const SheetSetup& setup, const std::string& title) {
    return std::make_unique<QueueJob>(setup, title);
}

}  // namespace korvet
