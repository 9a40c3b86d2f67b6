#include "platform/system_printers.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPrinterInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <algorithm>

#include "platform/paper_device.h"
#include "platform/pdf_job.h"
#include "platform/queue_job.h"

namespace korvet {
namespace {

QPrinterInfo InfoOf(const std::string& queue) {
    return QPrinterInfo::printerInfo(QString::fromStdString(queue));
}

/// What the spooler's own program says of a queue, in English; empty where there is no such program.
QString SpoolerSays(const QString& option, const std::string& queue) {
    constexpr int PatienceMilliseconds = 5000;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("lpstat"), {option, QString::fromStdString(queue)});
    if (!process.waitForFinished(PatienceMilliseconds)) {
        return {};
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

}  // namespace

std::vector<std::string> SystemPrinters::Queues() const {
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames()) {
        names.push_back(name.toStdString());
    }
    return names;
}

/// Where the system has no default, the first queue is as good as any.
std::string SystemPrinters::DefaultQueue() const {
    const std::string chosen = QPrinterInfo::defaultPrinterName().toStdString();
    const std::vector<std::string> queues = Queues();
    return !chosen.empty() || queues.empty() ? chosen : queues.front();
}

std::vector<Paper> SystemPrinters::PapersOf(const std::string& queue) const {
    return korvet::PapersOf(InfoOf(queue));
}

std::optional<int> SystemPrinters::DefaultPaper(const std::string& queue) const {
    const QPrinterInfo info = InfoOf(queue);
    const std::vector<Paper> papers = korvet::PapersOf(info);
    if (papers.empty()) {
        return std::nullopt;
    }
    const QList<QPageSize> sizes = info.supportedPageSizes();
    const qsizetype usual = std::max<qsizetype>(sizes.indexOf(info.defaultPageSize()), 0);
    return papers.at(static_cast<std::size_t>(usual)).number;
}

/// The toolkit tells that a queue takes no documents, but not why.
QueueState SystemPrinters::StateOf(const std::string& queue) const {
    const QPrinterInfo info = InfoOf(queue);
    if (info.isNull()) {
        return QueueState::Gone;
    }
    if (SpoolerSays(QStringLiteral("-a"), queue).contains(QStringLiteral("not accepting"))) {
        return QueueState::Rejecting;
    }
    const bool stopped = info.state() == QPrinter::Error || info.state() == QPrinter::Aborted;
    return stopped || SpoolerSays(QStringLiteral("-p"), queue).contains(QStringLiteral("disabled"))
               ? QueueState::Paused
               : QueueState::Ready;
}

PrintableArea SystemPrinters::AreaOf(const SheetSetup& setup) const {
    if (setup.printer != PdfPrinter) {
        return QueueArea(setup);
    }
    constexpr double Dot = MillimetresPerInch / PaperDotsPerInch;
    const PixelSize dots = DotsOf(PdfLayout(setup.paper, setup.orientation));
    return {dots.width * Dot, dots.height * Dot};
}

std::unique_ptr<PrintJob> SystemPrinters::StartDoc(const SheetSetup& setup, const std::string& title,
                                                   const std::string& path) {
    return setup.printer == PdfPrinter ? StartPdf(setup, title, path, files_) : StartQueueJob(setup, title);
}

}  // namespace korvet
