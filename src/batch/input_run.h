// The work on one input: its window opened, filled, built and written.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "batch/arguments.h"
#include "batch/batch_ui.h"
#include "batch/json_text.h"
#include "batch/outputs.h"
#include "window/fitting_window.h"

namespace korvet::batch {

class InputRun {
  public:
    InputRun(const Arguments& arguments, WindowContext& context, BatchUi& ui, BatchInput input);

    /// Does everything that the command line asks for, short of the JSON. Nothing goes further than a
    /// refusal, which has then been said. Throws UsageError when the window lacks what the command line
    /// names; what a row names and its window lacks is a refusal.
    void Run();

    /// What is told of the input after Run.
    [[nodiscard]] InputReport Report() const;

    /// Whether the input was taken and every output written.
    [[nodiscard]] bool Succeeded() const { return succeeded_; }

  private:
    Outcome RequireSound();
    Outcome OpenWindow();
    Outcome ReadCategory();
    Outcome PrepareNewWindow();
    void FillWithSample();
    Outcome RequireMesh();
    Outcome SetValues();

    const Arguments& arguments_;
    WindowContext& context_;
    BatchUi& ui_;
    BatchInput input_;
    std::string category_;
    std::unique_ptr<CFittingWindow> window_;
    std::optional<Outputs> outputs_;  ///< once the window is filled
    bool succeeded_ = false;
};

}  // namespace korvet::batch
