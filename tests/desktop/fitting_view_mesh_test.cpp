// The window of an imported mesh on the desktop: buttons in the place of boxes.
#include <QPushButton>

#include "tests/desktop/desk.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/fitting_views.h"

namespace korvet::desktop {

class FittingViewMeshTest : public QObject {
    Q_OBJECT
  private slots:
    void theButtonsAreThereAndNamed() {
        ViewOfTable shown(frmImportMesh);
        QCOMPARE(shown.Get("btnImportMesh_0").text(), QString("Import Mesh from DXF File..."));
        QCOMPARE(shown.Get("btnImportMesh_1").accessibleName(), QString("Import Mesh from AutoCAD..."));
        QVERIFY(shown.Get("btnImportMesh_0").isVisible() && shown.Get("btnImportMesh_1").isEnabled());
        ViewOfTable cone(frmRightCone1);
        QVERIFY(cone.Find("btnImportMesh_0") == nullptr);
    }

    void aWindowWithoutBoxesBeginsAtItsFirstButton() {
        ViewOfTable shown(frmImportMesh);
        shown.view.FocusFirstBox();
        QVERIFY(shown.Get("btnImportMesh_0").hasFocus());
        QTest::keyClick(shown.view.focusWidget(), Qt::Key_Tab);
        QVERIFY(shown.Get("btnImportMesh_1").hasFocus());
    }

    void theFirstButtonBringsAMeshOfAFile() {
        ViewOfTable shown(frmImportMesh);
        shown.Get("btnView_9").click();
        QCOMPARE(shown.shell.ui.messages.size(), std::size_t{1});
        QVERIFY(!shown.window.hasModel);
        std::string text = "0\nSECTION\n2\nENTITIES\n0\nPOLYLINE\n70\n16\n71\n2\n72\n2\n";
        for (const char* y : {"0", "40"}) {
            for (const char* x : {"0", "30"}) {
                text += std::string("0\nVERTEX\n10\n") + x + "\n20\n" + y + "\n30\n5\n";
            }
        }
        shown.shell.files.files["hood.dxf"] = text;
        shown.shell.ui.files.emplace_back("hood.dxf");
        shown.Get("btnImportMesh_0").click();
        QCOMPARE(shown.shell.ui.messages.back().text, std::string("Suitable mesh located"));
        shown.Get("btnView_9").click();
        QVERIFY(shown.window.hasModel);
        QCOMPARE(shown.shell.ui.messages.size(), std::size_t{2});
    }

    void theSecondButtonFindsNoDrawing() {
        ViewOfTable shown(frmImportMesh);
        shown.Get("btnImportMesh_1").click();
        QCOMPARE(shown.shell.ui.Texts(),
                 std::vector<std::string>{"Could not locate an active AutoCAD 2000 drawing."});
    }
};

static const Registered<FittingViewMeshTest> registeredFittingViewMeshTest("FittingViewMeshTest");

}  // namespace korvet::desktop

#include "fitting_view_mesh_test.moc"
