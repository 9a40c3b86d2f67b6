#include "platform/pdf_job.h"

#include <QIODevice>
#include <QPainter>
#include <QPdfWriter>
#include <optional>
#include <string>

#include "core/constants.h"
#include "core/reason.h"
#include "platform/graphics_application.h"
#include "platform/paper_device.h"

namespace korvet {
namespace {

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Takes what the toolkit writes, which is many short pieces, and hands it on in long ones.
class PieceDevice final : public QIODevice {
  public:
    PieceDevice(DiskFiles& files, const std::string& path) : file_(files.Begin(path)) {
        open(QIODevice::WriteOnly);
    }

    /// Puts the file in its place. Throws FileError, also what writing has thrown.
    void Place() {
        if (fault_) {
            throw FileError(*fault_);
        }
        HandOn();
        file_.Place(Flush::No);
    }

    /// What writing has thrown, which must not go through the toolkit.
    [[nodiscard]] const std::optional<std::string>& Fault() const { return fault_; }

    [[nodiscard]] bool isSequential() const override { return true; }

  protected:
    qint64 readData(char* /*data*/, qint64 /*size*/) override { return -1; }

    qint64 writeData(const char* data, qint64 size) override {
        constexpr std::size_t LongPiece = std::size_t{64} * 1024;
        try {
            waiting_.append(data, static_cast<std::size_t>(size));
            if (waiting_.size() >= LongPiece && !fault_) {
                HandOn();
            }
        } catch (const std::exception& error) {
            fault_ = ReasonOf(error);
        }
        if (fault_) {
            waiting_.clear();
        }
        return fault_ ? -1 : size;
    }

  private:
    void HandOn() {
        file_.Append(waiting_);
        waiting_.clear();
    }

    ReplacingFile file_;
    std::string waiting_;
    std::optional<std::string> fault_;
};

class PdfJob final : public PrintJob {
  public:
    PdfJob(const SheetSetup& setup, const std::string& title, const std::string& path, DiskFiles& files)
        : layout_(PdfLayout(setup.paper, setup.orientation)), path_(path), device_(files, path) {
        writer_.emplace(&device_);
        writer_->setCreator(Text(ProductTitle));
        writer_->setTitle(Text(title));
        writer_->setResolution(PaperDotsPerInch);
        writer_->setPageLayout(layout_);
    }

    DrawingDevice& NewPage() override {
        FinishSheet();
        const bool begun = painter_.isActive() ? writer_->newPage() : painter_.begin(&*writer_);
        if (!begun || device_.Fault()) {
            Fail();
        }
        PrepareDrawing(painter_);
        return sheet_.emplace(&painter_, DotsOf(layout_));
    }

    /// Without it the file stays as it was.
    void EndDoc() override {
        FinishSheet();
        const bool drawn = painter_.isActive() && painter_.end();
        writer_.reset();
        if (!drawn) {
            Fail();
        }
        try {
            device_.Place();
        } catch (const FileError& error) {
            throw PrintError(error.what());
        }
    }

  private:
    void FinishSheet() {
        if (sheet_) {
            sheet_->Finish();
        }
    }

    [[noreturn]] void Fail() const {
        throw PrintError(device_.Fault().value_or(path_ + " cannot be written"));
    }

    QPageLayout layout_;
    std::string path_;
    PieceDevice device_;
    std::optional<QPdfWriter> writer_;
    QPainter painter_;  // behind what it paints on, so that it ends first
    EndingReserve reserve_;
    std::optional<PaperDevice> sheet_;
};

}  // namespace

QPageLayout PdfLayout(const Paper& paper, std::int16_t orientation) {
    return {QPageSize(QSizeF(paper.width, paper.height), QPageSize::Millimeter, Text(paper.name),
                      QPageSize::ExactMatch),
            orientation == Landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

PixelSize DotsOf(const QPageLayout& layout) {
    const QSize dots = layout.paintRectPixels(PaperDotsPerInch).size();
    return {static_cast<double>(dots.width()), static_cast<double>(dots.height())};
}

std::unique_ptr<PrintJob> StartPdf(const SheetSetup& setup, const std::string& title, const std::string& path,
                                   DiskFiles& files) {
    EnsureGraphicsApplication();
    try {
        return std::make_unique<PdfJob>(setup, title, path, files);
    } catch (const FileError& error) {
        throw PrintError(error.what());
    }
}

}  // namespace korvet
