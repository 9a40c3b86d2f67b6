// Sheets as a PDF file.
#pragma once

#include <QPageLayout>
#include <memory>
#include <string>

#include "platform/disk_files.h"
#include "printing/printers.h"

namespace korvet {

/// A sheet without margins, of a paper of PdfPapers.
QPageLayout PdfLayout(const Paper& paper, std::int16_t orientation);

/// Its size in dots of PaperDotsPerInch.
PixelSize DotsOf(const QPageLayout& layout);

/// A PDF that takes the place of the file in one step, or none at all. Sheets go to the disk one by one. The
/// store outlives the job. Throws PrintError.
std::unique_ptr<PrintJob> StartPdf(const SheetSetup& setup, const std::string& title, const std::string& path,
                                   DiskFiles& files);

}  // namespace korvet
