// Sheets on a print queue.
#pragma once

#include <QPrinter>
#include <memory>
#include <string>

#include "printing/printers.h"

class QPageSize;
class QPrinterInfo;

namespace korvet {

/// The papers of a queue, each under a number and a name of its own.
std::vector<Paper> PapersOf(const QPrinterInfo& queue);

/// What can be printed on of a sheet, millimetres. Throws PrintError when the queue has no such sheet.
PrintableArea QueueArea(const SheetSetup& setup);

/// A document for a queue. Its sheets are kept until all of them are made: a document that is given up never
/// comes to the queue, not even in part. Throws PrintError.
std::unique_ptr<PrintJob> StartQueueJob(const SheetSetup& setup, const std::string& title);

}  // namespace korvet
