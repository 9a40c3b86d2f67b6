// The viewer of the help file.
#pragma once

#include <QString>
#include <memory>

#include "desktop/help/help_browser.h"
#include "frame/help.h"

class QWidget;

namespace korvet::desktop {

class HelpBook;
class HelpFrame;

/// One window for the whole program, modeless. While a modal dialog is open it belongs to that dialog, so
/// that it can be read and used beside it. Nothing is read from the file before help is first asked for.
class HelpWindow final : public HelpViewer {
  public:
    /// `helpFile` is the path of the compressed help file, which need not exist; the picture function draws
    /// the sketches of the pages and may be empty.
    explicit HelpWindow(QString helpFile, SketchPicture sketches = {});
    ~HelpWindow() override;

    /// The help file of a program in this folder: beside it where it was built, in ../share/korvet where it
    /// is installed.
    [[nodiscard]] static QString FileOfProgram(const QString& folder);

    [[nodiscard]] bool HasHelp() const override;
    void ShowContents() override;
    void ShowSearch() override;
    bool ShowTopic(int contextId) override;

    /// The window; null before help was first shown.
    [[nodiscard]] QWidget* Window() const;

  private:
    /// The book, opened at the first call. When that fails it stays so until the program starts again.
    HelpBook& Book();
    HelpFrame& Frame();

    QString helpFile_;
    SketchPicture sketches_;
    std::unique_ptr<HelpBook> book_;
    std::unique_ptr<HelpFrame> frame_;
};

}  // namespace korvet::desktop
