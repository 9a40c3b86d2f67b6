// frmMain on the desktop: menus, tool bar, status bar and the area of the child windows.
#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <chrono>
#include <functional>
#include <map>
#include <string>

#include "desktop/dialogs/dialog_host.h"
#include "desktop/frame/child_window.h"
#include "frame/main_frame.h"

class QAction;
class QLabel;
class QMenu;
class QTimer;
class QToolBar;
class QToolButton;

namespace korvet::desktop {

/// Where a window left at `place` comes up: within the screen that has most of it, or the first one when its
/// screen is gone. Pixels.
QRect OnScreen(QRect place, const QList<QRect>& screens);

class MainWindow : public QMainWindow, public FrameDesktop {
    Q_OBJECT
  public:
    /// Builds the frame from its tables. Everything must outlive it. Without a `recovery` no copies are kept.
    MainWindow(WindowContext& context, HelpViewer& help, SettingsStore& settings,
               RecoveryStore* recovery = nullptr);
    ~MainWindow() override;

    [[nodiscard]] CMainFrame& Frame() { return frame_; }
    [[nodiscard]] QMdiArea& Area() { return *area_; }
    [[nodiscard]] const std::function<void(int)>& HelpByContext() const { return showHelp_; }

    /// Shows what the models of the frame and its windows say.
    void Project();

    /// Takes the place where the frame was left, or a comfortable one on its first start.
    void Place(bool remembered);

    /// Keeps copies of what is unsaved from now on.
    void KeepCopiesEvery(std::chrono::milliseconds interval);

    /// The splash at the first activation, after it what an earlier run has left, and then these files, by
    /// their whole names. While a dialog is open they wait for its end.
    void Start(const QStringList& files);

    void ShowWindow(CFittingWindow& window) override;
    void BringToFront(CFittingWindow& window) override;
    void RemoveWindow(CFittingWindow& window) override;
    void Arrange(Arrangement arrangement) override;
    void Close() override;
    void RunModal(CategoryMenuDialog& dialog) override;
    void RunModal(SplashDialog& dialog) override;
    void RunModal(AboutDialog& dialog) override;
    void RunModal(DisclaimerDialog& dialog) override;
    void RunModal(RecoveryDialog& dialog) override;
    [[nodiscard]] bool IsFileAlreadyOpen(const std::string& path) const override;

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    static bool TakeAsCopy(QDropEvent& event);
    void OpenFiles(const QStringList& paths);
    void MakeMenus();
    void MakeToolBar();
    void MakeStatusBar();
    void ShowClock();
    void ShowPointerPlace();
    static void ShowPanel(QLabel& panel, const QString& text);
    void TakeActive(QMdiSubWindow* child);
    void TakeInnerSize();
    void SpeakWindows();
    void ProjectMenus();
    void ProjectToolBar();
    void ProjectStatusBar();
    void TileWindows(bool sideBySide);
    void ArrangeIcons();
    [[nodiscard]] ChildWindow* ChildOf(const CFittingWindow& window) const;
    [[nodiscard]] korvet::Place OuterPlace() const;

    [[nodiscard]] DialogHost Host();

    CMainFrame frame_;
    std::function<void(int)> showHelp_;  ///< by context number
    QMdiArea* area_;
    QToolBar* toolBar_ = nullptr;
    QMenu* viewMenu_ = nullptr;
    std::map<std::string, QAction*> actions_;  ///< entries and top menus by control name
    std::map<int, QToolButton*> tools_;        ///< by position
    QLabel* statusText_ = nullptr;
    QLabel* prompt_ = nullptr;
    QLabel* pointer_ = nullptr;
    QLabel* date_ = nullptr;
    QLabel* time_ = nullptr;
    QTimer* copying_;
    QStringList startFiles_;
    bool starting_ = false;  ///< the splash is up
    bool closing_ = false;
};

}  // namespace korvet::desktop
