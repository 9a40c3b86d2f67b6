// Printers without paper, for tests: the test says which queues there are and in which state, and looks at
// the sheets of the documents that came to them.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "printing/printers.h"
#include "tests/support/recording_device.h"

namespace korvet {

class RecordingPrinters final : public Printers {
  public:
    struct Queue {
        std::string name;
        std::vector<Paper> papers = {{9, "A4", 210, 297}, {8, "A3", 297, 420}};
        QueueState state = QueueState::Ready;
        bool answers = true;  ///< can be asked for its paper
    };

    /// A document that was handed over.
    struct Document {
        SheetSetup setup;
        std::string title;
        std::string path;
        std::vector<std::shared_ptr<RecordingDevice>> sheets;
    };

    std::vector<Queue> queues;        ///< the first is the default
    double margin = 5;                ///< millimetres of a sheet that can't be printed on, on every side
    double dotsPerInch = 7200;        ///< of sheets
    std::vector<Document> documents;  ///< in their order
    int started = 0;                  ///< documents that were begun
    std::string fault;                ///< what handing over fails with; empty when it does not

    [[nodiscard]] std::vector<std::string> Queues() const override {
        std::vector<std::string> names;
        for (const Queue& queue : queues) {
            names.push_back(queue.name);
        }
        return names;
    }

    [[nodiscard]] std::string DefaultQueue() const override {
        return queues.empty() ? std::string() : queues.front().name;
    }

    [[nodiscard]] std::vector<Paper> PapersOf(const std::string& name) const override {
        const Queue* const queue = Find(name);
        return queue == nullptr ? std::vector<Paper>() : queue->papers;
    }

    [[nodiscard]] std::optional<int> DefaultPaper(const std::string& name) const override {
        const Queue* const queue = Find(name);
        return queue == nullptr || !queue->answers || queue->papers.empty()
                   ? std::nullopt
                   : std::optional(queue->papers.front().number);
    }

    [[nodiscard]] QueueState StateOf(const std::string& name) const override {
        const Queue* const queue = Find(name);
        return queue == nullptr ? QueueState::Gone : queue->state;
    }

    [[nodiscard]] PrintableArea AreaOf(const SheetSetup& setup) const override {
        const double edge = setup.printer == PdfPrinter ? 0 : 2 * margin;
        const PrintableArea upright = {setup.paper.width - edge, setup.paper.height - edge};
        return setup.orientation == Portrait ? upright : PrintableArea{upright.height, upright.width};
    }

    std::unique_ptr<PrintJob> StartDoc(const SheetSetup& setup, const std::string& title,
                                       const std::string& path) override {
        ++started;
        return std::make_unique<Job>(*this, Document{setup, title, path, {}});
    }

  private:
    class Job final : public PrintJob {
      public:
        Job(RecordingPrinters& printers, Document document)
            : printers_(printers), document_(std::move(document)) {}

        DrawingDevice& NewPage() override {
            const PrintableArea area = printers_.AreaOf(document_.setup);
            const double dots = printers_.dotsPerInch / MillimetresPerInch;
            auto sheet = std::make_shared<RecordingDevice>(area.width * dots, area.height * dots);
            sheet->dpi = printers_.dotsPerInch;
            sheet->letter = {6 * sheet->dpi / 72, 12 * sheet->dpi / 72};
            document_.sheets.push_back(sheet);
            return *document_.sheets.back();
        }

        void EndDoc() override {
            if (!printers_.fault.empty()) {
                throw PrintError(printers_.fault);
            }
            printers_.documents.push_back(document_);
        }

      private:
        RecordingPrinters& printers_;
        Document document_;
    };

    [[nodiscard]] const Queue* Find(const std::string& name) const {
        const auto found = std::find_if(queues.begin(), queues.end(),
                                        [&](const Queue& queue) { return queue.name == name; });
        return found == queues.end() ? nullptr : &*found;
    }
};

}  // namespace korvet
