// The printers of the machine.
#pragma once

#include "platform/disk_files.h"
#include "printing/printers.h"

namespace korvet {

/// Queues are asked anew every time: they come and go while the program runs.
class SystemPrinters final : public Printers {
  public:
    /// PDF files are written to this store, which outlives the printers.
    explicit SystemPrinters(DiskFiles& files) : files_(files) {}

    [[nodiscard]] std::vector<std::string> Queues() const override;
    [[nodiscard]] std::string DefaultQueue() const override;
    [[nodiscard]] std::vector<Paper> PapersOf(const std::string& queue) const override;
    [[nodiscard]] std::optional<int> DefaultPaper(const std::string& queue) const override;
    [[nodiscard]] QueueState StateOf(const std::string& queue) const override;
    [[nodiscard]] PrintableArea AreaOf(const SheetSetup& setup) const override;
    std::unique_ptr<PrintJob> StartDoc(const SheetSetup& setup, const std::string& title,
                                       const std::string& path) override;

  private:
    DiskFiles& files_;
};

}  // namespace korvet
