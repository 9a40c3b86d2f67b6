#include "platform/pdf_job.h"

#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <optional>

#include "core/constants.h"
#include "platform/graphics_application.h"
#include "platform/paper_device.h"

namespace korvet {
namespace {

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

class PdfJob final : public PrintJob {
  public:
    PdfJob(const SheetSetup& setup, const std::string& title, const std::string& path)
        : layout_(PdfLayout(setup.paper, setup.orientation)), path_(path) {
        const QFileInfo target(Text(path));
        if (target.exists() && !target.isFile()) {
            file_ = std::make_unique<QFile>(target.filePath());
        } else {
            file_ = std::make_unique<QSaveFile>(target.filePath());
        }
        if (!file_->open(QIODevice::WriteOnly)) {
            Fail();
        }
        writer_.emplace(file_.get());
        writer_->setCreator(Text(ProductTitle));
        writer_->setTitle(Text(title));
        writer_->setResolution(PaperDotsPerInch);
        writer_->setPageLayout(layout_);
    }

    /// Without EndDoc the file stays as it was.
    ~PdfJob() override {
        if (auto* const saved = dynamic_cast<QSaveFile*>(file_.get())) {
            saved->cancelWriting();
        }
    }

    DrawingDevice& NewPage() override {
        const bool begun = painter_.isActive() ? writer_->newPage() : painter_.begin(&*writer_);
        if (!begun) {
            Fail();
        }
        PrepareDrawing(painter_);
        return sheet_.emplace(&painter_, DotsOf(layout_));
    }

    void EndDoc() override {
        const bool drawn = painter_.isActive() && painter_.end();
        writer_.reset();
        auto* const saved = dynamic_cast<QSaveFile*>(file_.get());
        if (saved == nullptr) {
            file_->close();
        }
        if (!drawn || file_->error() != QFileDevice::NoError || (saved != nullptr && !saved->commit())) {
            Fail();
        }
    }

  private:
    [[noreturn]] void Fail() const { throw PrintError(path_ + ": " + file_->errorString().toStdString()); }

    QPageLayout layout_;
    std::string path_;
    std::unique_ptr<QFileDevice> file_;
    std::optional<QPdfWriter> writer_;
    QPainter painter_;  // behind what it paints on, so that it ends first
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

std::unique_ptr<PrintJob> StartPdf(const SheetSetup& setup, const std::string& title,
                                   const std::string& path) {
    EnsureGraphicsApplication();
    return std::make_unique<PdfJob>(setup, title, path);
}

}  // namespace korvet
