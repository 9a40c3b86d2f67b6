// A fitting window on the desktop: a projection of its plain model, in both directions.
#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "desktop/fitting/drawing_area.h"
#include "desktop/sketch/sketch_page.h"
#include "window/fitting_window.h"

class QBoxLayout;
class QFrame;
class QGridLayout;
class QGroupBox;
class QKeyEvent;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;
class QStackedLayout;
class QToolButton;

namespace korvet::desktop {

class SketchScroll;

class FittingView : public QWidget {
    Q_OBJECT
  public:
    /// Builds the widgets of the window's table. The window must outlive the view or be taken away by Detach.
    FittingView(CFittingWindow& window, QWidget* parent);
    ~FittingView() override;

    /// Cuts the view off its window, which is about to go.
    void Detach();

    [[nodiscard]] CFittingWindow* Window() const { return window_; }

    /// No more than its drawing needs: what the panel has no room for, it scrolls.
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// Shows what the model says, focus and selection included.
    void Project();

    /// Adds the name of the window to the spoken name of each control, so that none is the same in two
    /// windows side by side; nothing for the window that is worked in.
    void SpeakWindow(const QString& name);

    /// Puts the focus into the first box of the page, where typing begins.
    void FocusFirstBox();

    /// The sizes and the state of the view into the model.
    void TakeShape(int state);

    /// What a click on the button of a group of options does.
    using SelectButton = std::function<void(CFittingWindow&, std::size_t button)>;

    std::function<void()> afterEvent;    ///< a command or an edit has run
    std::function<void()> pointerMoved;  ///< the place of the pointer on the drawing is another
    std::function<void()> closeWindow;
    std::function<void(const QPoint&)> popUpMenu;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    QWidget* MakePanel();
    QWidget* MakePages();
    QWidget* MakePage(std::size_t index);
    SketchPage* MakeSketch(std::size_t index);
    QGroupBox* MakeOptions(const std::string& name, const QString& title, OptionGroup FittingOptions::*group,
                           const SelectButton& select, int room = 0);
    QWidget* MakeAngleOptions();
    QLayout* MakeTypes(QWidget* parent);
    QLayout* MakeSteps(QWidget* parent, const std::string& name, const std::vector<Control>& models,
                       void (CFittingWindow::*click)(std::size_t));
    QLayout* MakeCommands(QWidget* parent);
    void ChooseWidth();
    bool TakeWidth(double boxes);
    void AddWindowOptions(QBoxLayout& column);
    QPushButton* MakeWideButton(const std::string& name, const Control& model,
                                const std::function<void(CFittingWindow&)>& click);
    QWidget* MakeControls();
    QWidget* MakePatternControls();
    QGridLayout* MakeViewButtons(QWidget* parent);
    QWidget* MakeTextSize(QWidget* parent);
    QToolButton* MakeViewButton(int button, QWidget* parent);
    QToolButton* MakeButton(const std::string& name, const QString& accessibleName, QWidget* parent);
    void AddShortcuts();
    using ChangeText = std::function<void(CFittingWindow&, const std::string&)>;
    void Connect(QLineEdit* edit, TextBox& box, const ChangeText& change);
    void FitPanel();
    void ShowIcons();
    void ShowPointer();
    void ProjectFocus();
    void ProjectViewButtons();
    void RevealBox();
    void ProjectOptions();
    [[nodiscard]] SketchPage& ShownPage() const;
    [[nodiscard]] bool IsShortcut(const QKeyEvent& event) const;
    void After();

    void Do(const std::function<void(CFittingWindow&)>& action);

    /// A box on one of the pages that bear it.
    struct BoundBox {
        QLineEdit* edit;
        std::size_t index;  ///< in txtParameter
    };
    struct Options {
        OptionGroup FittingOptions::*group;
        std::vector<QRadioButton*> buttons;
    };
    struct Shown {
        QWidget* widget;
        const Control* control;
        std::optional<std::size_t> page = {};  ///< the only page beside which it stands
    };

    CFittingWindow* window_;
    DrawingArea* drawing_ = nullptr;
    QScrollArea* panel_ = nullptr;
    std::vector<SketchPage*> pages_;
    std::vector<SketchScroll*> scrolls_;  ///< of the pages
    std::vector<BoundBox> boxes_;
    QStackedLayout* pageStack_ = nullptr;
    std::vector<Options> options_;
    QWidget* firstControl_ = nullptr;  ///< where typing would begin in a window without boxes
    std::vector<Shown> shown_;         ///< what the window has beside the controls of every window
    std::array<QToolButton*, 10> viewButtons_ = {};
    std::array<QToolButton*, 2> typeButtons_ = {};
    QLabel* typeLabel_ = nullptr;
    QLabel* textSizeLabel_ = nullptr;
    QLineEdit* textSize_ = nullptr;
    QToolButton* redraw_ = nullptr;
    QToolButton* settings_ = nullptr;
    QToolButton* close_ = nullptr;
    std::string shownFocus_;
    QString spokenWindow_;
};

}  // namespace korvet::desktop
