// The frame's bars and windows: every entry and button reaches the member of the main frame that it should.
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolButton>
#include <memory>
#include <sstream>
#include <utility>

#include "frame/frame_menu.h"
#include "tests/desktop/desk.h"
#include "tests/desktop/desktop_test.h"
#include "tests/support/recording_device.h"
#include "window/views.h"

namespace korvet::desktop {
namespace {

constexpr std::array<State, 5> AllStates = {State::NoChild, State::NoView, State::Refused, State::Model,
                                            State::Pattern};

/// What a command can have changed so that the next one would meet another state: windows, model, view and
/// modes.
std::string Standing(CMainFrame& frame) {
    std::ostringstream told;
    told << frame.Children().size() << " windows";
    if (const CFittingWindow* child = frame.ActiveChild()) {
        const MouseModes& modes = child->modes;
        told << ", " << child->controls.caption << ", model " << child->hasModel << ", pattern "
             << (child->views->Count() > 0 && InPatternView(*child->views)) << ", modes " << modes.panMode
             << modes.zoomWindowMode << modes.measureMode << modes.labelMode << modes.selectFramesMode
             << modes.rotateMode << modes.dimensionMode << child->removeDimensionMode;
    }
    return told.str();
}

/// One side of the comparison: the frame and all that a command can tell of itself.
struct Side {
    TestShell& shell;
    RecordingHelp& help;
    CMainFrame& frame;
    std::vector<std::string> dialogs = {};  ///< the names of those that the command showed

    void Listen() {
        shell.ui.onPatternSettings = [this](auto&) { dialogs.emplace_back("settings"); };
        shell.ui.onOptions = [this](auto&) { dialogs.emplace_back("options"); };
        shell.ui.onDimensionOptions = [this](auto&) { dialogs.emplace_back("dimension options"); };
        shell.ui.onLabel = [this](auto&) { dialogs.emplace_back("label"); };
        shell.ui.onDxfOptions = [this](auto&) { dialogs.emplace_back("export"); };
        help.topics = {2100};
    }

    /// Forgets what was told, names a file to whoever asks and gives all commands free.
    void Prepare() {
        dialogs.clear();
        shell.ui.messages.clear();
        shell.ui.fileDialogs.clear();
        help.calls.clear();
        shell.ui.files = {"out.Kvt"};
        EnableFittingCommands(shell.frame);
        shell.frame.menuEnabled["mnuSelectFrames"] = shell.frame.toolEnabled[7] = true;
    }

    /// Everything that a command can have changed, as text.
    [[nodiscard]] QString Told() const {
        std::ostringstream told;
        for (const MessageBox& message : shell.ui.messages) {
            told << "box " << message.style << " " << message.title << ": " << message.text << "\n";
        }
        for (const FileChoice& choice : shell.ui.fileDialogs) {
            told << "file " << choice.title << " " << choice.filter << "\n";
        }
        for (const std::string& dialog : dialogs) {
            told << "dialog " << dialog << "\n";
        }
        for (const std::string& call : help.calls) {
            told << "help " << call << "\n";
        }
        told << Standing(frame) << ", counter " << shell.frame.documentCounter << "\n";
        for (const auto& [name, enabled] : shell.frame.menuEnabled) {
            told << name << (enabled ? " on " : " off ");
        }
        for (const auto& [position, enabled] : shell.frame.toolEnabled) {
            told << position << (enabled ? " on " : " off ");
        }
        told << shell.frame.printFramesTicked << shell.frame.toolBarVisible << shell.frame.statusBarVisible
             << "\n";
        if (const CFittingWindow* child = frame.ActiveChild()) {
            told << " views " << child->views->Count() << " tip "
                 << child->controls.pboxGraphicWindow.toolTip;
        }
        return QString::fromStdString(told.str());
    }
};

std::string NameOfModal(const std::string& objectName) {
    if (objectName == "frmCategoryMenu") {
        return "category menu";
    }
    if (objectName == "frmAbout") {
        return "about";
    }
    return objectName == "frmDisclaimer" ? "disclaimer" : objectName;
}

/// A frame without widgets beside one with them, both in a state.
class TwoFrames {
  public:
    explicit TwoFrames(State state) {
        desktop_.drawingArea = &area_;
        frame_.Load();
        if (state != State::NoChild) {
            desktop_.pick = "Right Cone";
            frame_.RunMenu("mnuFileNew");
            frame_.ActivateChild(desktop_.windows.front());
            Bring(*frame_.ActiveChild(), state);
            Bring(desk_.New(), state);
        }
        desktop_.pick.reset();
        logic_.Listen();
        widgets_.Listen();
        brought_ = Standing(frame_);
    }

    /// Whether both are still in the state that they were brought into.
    [[nodiscard]] bool StandAsBrought() { return Standing(frame_) == brought_ && desk_.window.isVisible(); }

    /// Runs a command on both and tells of what it did: in the logic alone, and through its widget.
    template <typename InLogic, typename InWidgets>
    std::pair<QString, QString> Run(InLogic inLogic, InWidgets inWidgets) {
        logic_.Prepare();
        desktop_.calls.clear();
        inLogic(frame_);
        for (const std::string& call : desktop_.calls) {
            if (call == "close") {
                (void)frame_.QueryUnload({}, false);
            } else if (call == "category menu" || call == "about" || call == "disclaimer") {
                logic_.dialogs.push_back(call);
            }
        }
        widgets_.Prepare();
        desk_.window.Project();
        ModalVisitor visitor;
        inWidgets(desk_.window);
        for (const std::string& modal : visitor.seen) {
            widgets_.dialogs.push_back(NameOfModal(modal));
        }
        return {logic_.Told(), widgets_.Told()};
    }

  private:
    TestShell shell_;
    RecordingDesktop desktop_;
    RecordingDevice area_{700, 700};
    RecordingHelp help_;
    MemorySettings settings_;
    CMainFrame frame_{shell_.context, desktop_, help_, settings_};
    Desk desk_;
    Side logic_{shell_, help_, frame_};
    Side widgets_{desk_.shell, desk_.help, desk_.window.Frame()};
    std::string brought_;
};

/// Runs commands in a state, one after the other; the frames are made anew when one has left the state.
class InState {
  public:
    explicit InState(State state) : state_(state) {}

    template <typename InLogic, typename InWidgets>
    void Verify(const QString& command, InLogic inLogic, InWidgets inWidgets) {
        if (frames_ == nullptr || !frames_->StandAsBrought()) {
            frames_ = std::make_unique<TwoFrames>(state_);
        }
        const auto [expected, done] = frames_->Run(inLogic, inWidgets);
        QVERIFY2(done == expected, qPrintable(command + ": " + done + "\ninstead of " + expected));
    }

  private:
    State state_;
    std::unique_ptr<TwoFrames> frames_;
};

}  // namespace

class FrameTest : public QObject {
    Q_OBJECT
  private slots:
    void everyCommandDoesWhatItSays_data() {
        QTest::addColumn<int>("state");
        for (const State state : AllStates) {
            QTest::addRow("state %d", static_cast<int>(state)) << static_cast<int>(state);
        }
    }
    void everyCommandDoesWhatItSays() {
        QFETCH(int, state);
        InState inState(static_cast<State>(state));
        for (const MenuEntry& entry : FrameMenu()) {
            if (entry.menu.empty() || entry.name.empty()) {
                continue;
            }
            const QString name = QString::fromStdString(std::string(entry.name));
            inState.Verify(
                name, [&](CMainFrame& frame) { frame.RunMenu(entry.name); },
                [&](MainWindow& window) {
                    auto* action = window.findChild<QAction*>(name);
                    QVERIFY2(action != nullptr && action->isEnabled(), qPrintable(name));
                    action->trigger();
                });
        }
        for (const ToolButton& tool : FrameToolBar()) {
            const QString name = QStringLiteral("tbToolBar_%1").arg(tool.position);
            inState.Verify(
                name, [&](CMainFrame& frame) { frame.ClickTool(tool.position); },
                [&](MainWindow& window) { Click(window, qPrintable(name)); });
        }
    }

    void menusStandInTheirOrder() {
        Desk desk;
        QStringList tops;
        for (const QAction* action : desk.window.menuBar()->actions()) {
            tops << action->text().remove('&');
        }
        QCOMPARE(tops, QStringList({"File", "View", "Tools", "Dimension", "Modify", "Window", "Help"}));
        QStringList view;
        for (const QAction* action : desk.window.findChild<QMenu*>("mnuView")->actions()) {
            if (!action->isSeparator()) {
                view << action->text();
            }
        }
        QCOMPARE(view, QStringList({"&Toolbar", "Status &Bar", "Redraw", "Pan", "Zoom Window", "Zoom In",
                                    "Zoom  Out", "Zoom Extents", "Zoom Previous"}));
    }

    void fittingCommandsAreGreyAtTheStart() {
        Desk desk;
        QVERIFY(!desk.window.findChild<QAction*>("mnuFileSave")->isEnabled());
        QVERIFY(!desk.window.findChild<QAction*>("mnuPan")->isEnabled());
        QVERIFY(!desk.window.findChild<QToolButton*>("tbToolBar_3")->isEnabled());
        QVERIFY(desk.window.findChild<QAction*>("mnuFileNew")->isEnabled());
        desk.New();
        QVERIFY(desk.window.findChild<QAction*>("mnuFileSave")->isEnabled());
        QVERIFY(desk.window.findChild<QToolButton*>("tbToolBar_3")->isEnabled());
        QVERIFY(!desk.window.findChild<QAction*>("mnuSelectFrames")->isEnabled());
    }

    void barsComeAndGo() {
        Desk desk;
        auto* bar = desk.window.findChild<QWidget*>("tbToolBar");
        QVERIFY(bar->isVisible());
        desk.window.findChild<QAction*>("mnuViewToolbar")->trigger();
        QVERIFY(!bar->isVisible());
        QVERIFY(!desk.window.findChild<QAction*>("mnuViewToolbar")->isChecked());
        desk.window.findChild<QAction*>("mnuViewToolbar")->trigger();
        QVERIFY(bar->isVisible());
    }
};

static const Registered<FrameTest> registeredFrameTest("FrameTest");

}  // namespace korvet::desktop

#include "frame_test.moc"
