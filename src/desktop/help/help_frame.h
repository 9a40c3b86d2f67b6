// The help window itself: contents, index and search beside the page.
#pragma once

#include <QMainWindow>
#include <QUrl>
#include <vector>

#include "desktop/help/help_browser.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;
class QTreeView;

namespace korvet::desktop {

struct HelpHit;

class HelpFrame final : public QMainWindow {
  public:
    /// The book must outlive it. A book that is not open shows why.
    HelpFrame(HelpBook& book, SketchPicture sketches);

    /// Each brings the window to the front; a modal dialog that is open lets it be used.
    void ShowContents();
    void ShowSearch();
    void ShowPage(const QUrl& page);

  private:
    enum Tab : int { ContentsTab, IndexTab, SearchTab };

    void MakeTools();
    QWidget* MakePagePane();
    QWidget* MakeContents();
    QWidget* MakeIndex();
    QWidget* MakeSearch();
    void MakeShortcuts();

    /// Shows the window at the front, for the modal dialog that is open now.
    void Present();
    void AttachToDialog();

    void ShowFirstPage();
    void FocusLine(int tab);
    void FilterIndex(const QString& text);
    void RunSearch(const QString& text);
    void FindInPage(bool backward);
    void OpenFindBar();
    void SelectContentsEntry(const QUrl& page);

    HelpBook& book_;
    HelpBrowser* txtHelp_;
    QTabWidget* tabHelp_ = nullptr;
    QTreeView* treeContents_ = nullptr;
    QLineEdit* txtIndex_ = nullptr;
    QListWidget* lstIndex_ = nullptr;
    QLineEdit* txtSearch_ = nullptr;
    QListWidget* lstSearch_ = nullptr;
    QLabel* lblSearch_ = nullptr;
    QWidget* findBar_ = nullptr;
    QLineEdit* txtFind_ = nullptr;
    QLabel* lblFind_ = nullptr;
};

}  // namespace korvet::desktop
