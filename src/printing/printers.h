// Port: the printers of the machine, and the documents that are printed on them.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "dialogs/paper.h"
#include "display/drawing_device.h"

namespace korvet {

/// A document can't be printed; what() says why, for the user.
class PrintError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A paper as it lies upright, by the number and name that its printer has for it.
struct Paper {
    int number = 0;
    std::string name;
    double width = 0;   ///< millimetres
    double height = 0;  ///< millimetres
    bool operator==(const Paper&) const = default;
};

/// The printer that is no queue: it makes a PDF of the sheets, on any of the papers of PdfPapers.
inline constexpr const char* PdfPrinter = "PDF file";

/// Where and on what a document is printed.
struct SheetSetup {
    std::string printer;  ///< name of a queue, or PdfPrinter
    Paper paper;
    std::int16_t orientation = Portrait;
    bool operator==(const SheetSetup&) const = default;
};

/// What a printer can print on of a sheet, as the sheet is turned.
struct PrintableArea {
    double width = 0;   ///< millimetres
    double height = 0;  ///< millimetres
};

/// Whether a queue takes documents now.
enum class QueueState : std::uint8_t { Ready, Paused, Rejecting, Gone };

/// A document that is being made. It comes to the printer by EndDoc alone: until then there is none, and
/// without it there never is.
class PrintJob {
  public:
    PrintJob() = default;
    PrintJob(const PrintJob&) = delete;
    PrintJob& operator=(const PrintJob&) = delete;
    virtual ~PrintJob() = default;

    /// Begins the next sheet and gives its printable area to draw on, until the next call.
    virtual DrawingDevice& NewPage() = 0;

    /// Hands the document over. Throws PrintError when that fails; there is then no document.
    virtual void EndDoc() = 0;
};

class Printers {
  public:
    Printers() = default;
    Printers(const Printers&) = delete;
    Printers& operator=(const Printers&) = delete;
    virtual ~Printers() = default;

    /// The queues, in the order in which the system names them.
    [[nodiscard]] virtual std::vector<std::string> Queues() const = 0;

    /// The system's default queue; empty when there is none.
    [[nodiscard]] virtual std::string DefaultQueue() const = 0;

    /// The papers that a queue has; none when it is gone.
    [[nodiscard]] virtual std::vector<Paper> PapersOf(const std::string& queue) const = 0;

    /// The number of the paper that a queue takes by default; nothing when it can't be asked.
    [[nodiscard]] virtual std::optional<int> DefaultPaper(const std::string& queue) const = 0;

    [[nodiscard]] virtual QueueState StateOf(const std::string& queue) const = 0;

    /// Throws PrintError when the printer has no such sheet.
    [[nodiscard]] virtual PrintableArea AreaOf(const SheetSetup& setup) const = 0;

    /// Begins a document of that title. `path` is the file of PdfPrinter, and is replaced as a whole. Throws
    /// PrintError.
    virtual std::unique_ptr<PrintJob> StartDoc(const SheetSetup& setup, const std::string& title,
                                               const std::string& path) = 0;
};

/// The papers that a PDF can be made on.
const std::vector<Paper>& PdfPapers();

}  // namespace korvet
