#include "window/auto_cad.h"

#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "core/number_text.h"
#include "core/reason.h"
#include "core/text_encoding.h"
#include "exchange/mesh_dxf.h"
#include "window/transfer.h"

namespace korvet {
namespace {

using Object = std::shared_ptr<AutomationObject>;

constexpr std::int32_t ModelSpaceIsActive = 1;

/// Under which name the program registers itself.
std::string ProgId() {
    return AutoCadVersion == 14 ? "AutoCAD.Application.14" : "AutoCAD.Application.15";
}

/// A value of the kind that is asked for. Throws AutomationError when it is of another one.
template <typename T>
T As(const AutomationValue& value) {
    if (const T* const found = std::get_if<T>(&value)) {
        return *found;
    }
    throw AutomationError("an answer is not what was asked for");
}

Object ObjectOf(const AutomationValue& value) {
    Object object = As<Object>(value);
    return object ? object : throw AutomationError("there is no such object");
}

AutomationValue Call(AutomationObject& object, const std::string& name,
                     std::vector<AutomationValue> arguments = {}) {
    return object.Call(name, arguments, 0);
}

std::vector<double> ArrayOf(const C3DPoints& points) {
    std::vector<double> numbers;
    numbers.reserve(3 * points.Count());
    for (const C3DPoint& point : points) {
        numbers.insert(numbers.end(), {point.x, point.y, point.z});
    }
    return numbers;
}

std::vector<double> ArrayOf(const C3DPoint& point) {
    return {point.x, point.y, point.z};
}

/// A command of the program's own language that says a text.
std::string Saying(const std::string& command, const std::string& text) {
    return "(" + command + " \"" + text + "\") ";
}

}  // namespace

Outcome CAutoCAD::ConnectToAcad() {
    AcadConnected = false;
    if (automation_ == nullptr) {
        return Refused;
    }
    try {
        AcadApp = automation_->Running(ProgId());
        if (!AcadApp) {
            return Refused;
        }
        AcadDoc = ObjectOf(AcadApp->Get("ActiveDocument"));
        const auto version = As<std::string>(AcadApp->Get("Version"));
        Version = ParseWholeNumber(version.substr(0, 2), 0, 99).value_or(0);
        AcadConnected = true;
    } catch (const AutomationError&) {
        CloseAcad();
    }
    return RefusedIf(!AcadConnected);
}

void CAutoCAD::CloseAcad() {
    AcadDoc.reset();
    AcadApp.reset();
    AcadConnected = false;
}

/// What the user is to do on the other screen; refused when he does not want to.
Outcome CAutoCAD::Ask(int message) {
    const Answer answer =
        boxes_.Show({Message(message), OkCancelBox, std::string(ProductTitle), {}, std::nullopt});
    return RefusedIf(answer != Answer::Ok);
}

Outcome CAutoCAD::PickInsertionPoint() {
    if (Ask(PickInsertion)) {
        return Refused;
    }
    const Object utility = ObjectOf(AcadDoc->Get("Utility"));
    const auto point =
        As<std::vector<double>>(Call(*utility, "GetPoint", {std::monostate(), "Start point: "}));
    if (point.size() != 3) {
        throw AutomationError("the point that was picked has no three coordinates");
    }
    insertion_ = {point[0], point[1], point[2], PlainStation};
    return Passed;
}

/// Draws in the world's axes, and has a layer for everything.
void CAutoCAD::PrepareDrawing() {
    Call(*AcadDoc, "SendCommand", {"_ucs w "});
    const COptions& options = options_;
    for (const std::string* const layer :
         {&options.DXFBorderLayer, &options.DXFCutLayer, &options.DXFDimensionLayer, &options.DXFFoldLayer,
          &options.DXFTextLayer}) {
        MakeLayer(*layer);
    }
}

void CAutoCAD::MakeLayer(const std::string& name) {
    const Object layers = ObjectOf(AcadDoc->Get("Layers"));
    const auto count = As<std::int32_t>(layers->Get("Count"));
    const std::string wanted{Trimmed(name)};
    for (std::int32_t i = 0; i < count; ++i) {
        const Object layer = ObjectOf(Call(*layers, "Item", {i}));
        if (Trimmed(As<std::string>(layer->Get("Name"))) == wanted) {
            return;
        }
    }
    Call(*layers, "Add", {wanted});
}

Outcome CAutoCAD::TransferTempFile(const std::string& transferFile) {
    if (!files_.Exists(transferFile) || PickInsertionPoint()) {
        return Refused;
    }
    PrepareDrawing();
    const auto entities = ReadTransferFile(files_.Read(transferFile, LargestDrawing));
    Call(*AcadDoc, "SendCommand", {Saying("princ", Message(Transferring))});
    Replay(entities);
    Call(*AcadDoc, "Regen", {true});
    Call(*AcadDoc, "SendCommand", {Saying("alert", Message(TransferComplete))});
    return Passed;
}

C3DPoint CAutoCAD::Placed(const C3DPoint& point) const {
    return {point.x + insertion_.x, point.y + insertion_.y, point.z + insertion_.z, point.Flag};
}

void CAutoCAD::Replay(const std::vector<TransferEntity>& entities) {
    for (const TransferEntity& entity : entities) {
        const std::string layer{Trimmed(entity.layer)};  // as MakeLayer has called it
        if (const auto* const line = std::get_if<TransferLine>(&entity.shape)) {
            DrawLine(Placed(line->a), Placed(line->b), layer);
        } else if (const auto* const arc = std::get_if<TransferArc>(&entity.shape)) {
            DrawArc(Placed(arc->centre), arc->radius, DegToRad(arc->start), DegToRad(arc->end), layer);
        } else if (const auto* const text = std::get_if<TransferText>(&entity.shape)) {
            DrawText(text->text, Placed(text->point), DegToRad(text->angle), text->size, text->justification,
                     layer);
        } else {
            const auto& polyline = std::get<TransferPolyline>(entity.shape);
            C3DPoints points;
            for (const C3DPoint& point : polyline.points) {
                points.Add(Placed(point));
            }
            if (polyline.rows > 0) {
                DrawPolygonMesh(points, polyline.rows, polyline.columns, layer);
            } else {
                DrawPolyLine(points, layer);
            }
        }
    }
}

bool CAutoCAD::InModelSpace() const {
    return As<std::int32_t>(AcadDoc->Get("ActiveSpace")) == ModelSpaceIsActive;
}

CAutoCAD::Object CAutoCAD::Space() const {
    return ObjectOf(AcadDoc->Get(InModelSpace() ? "ModelSpace" : "PaperSpace"));
}

void CAutoCAD::DrawLine(const C3DPoint& a, const C3DPoint& b, const std::string& layer) {
    ObjectOf(Call(*Space(), "AddLine", {ArrayOf(a), ArrayOf(b)}))->Put("Layer", layer);
}

void CAutoCAD::DrawArc(const C3DPoint& centre, double radius, double start, double end,
                       const std::string& layer) {
    ObjectOf(Call(*Space(), "AddArc", {ArrayOf(centre), radius, start, end}))->Put("Layer", layer);
}

void CAutoCAD::DrawText(const std::string& text, const C3DPoint& point, double angle, double size,
                        int justification, const std::string& layer) {
    const Object entity = ObjectOf(Call(*Space(), "AddText", {text, ArrayOf(point), size}));
    entity->Put("Rotation", angle);
    entity->Put("Alignment", static_cast<std::int32_t>(justification));
    if (justification > 0) {
        entity->Put("TextAlignmentPoint", ArrayOf(point));
    }
    entity->Put("Layer", layer);
}

void CAutoCAD::DrawPolyLine(const C3DPoints& list, const std::string& layer) {
    const Object entity = ObjectOf(Call(*Space(), "AddPolyline", {ArrayOf(list)}));
    entity->Put("Layer", layer);
    Call(*entity, "Update");
}

void CAutoCAD::DrawPolygonMesh(const C3DPoints& list, std::size_t m, std::size_t n,
                               const std::string& layer) {
    if (!InModelSpace()) {
        ShowPlain(boxes_, Message(MeshOnlyInModelSpace));
        return;
    }
    const Object entity =
        ObjectOf(Call(*ObjectOf(AcadDoc->Get("ModelSpace")), "Add3DMesh",
                      {static_cast<std::int32_t>(m), static_cast<std::int32_t>(n), ArrayOf(list)}));
    entity->Put("Layer", layer);
    Call(*entity, "Update");
}

Outcome CAutoCAD::GetAcadMeshObject() {
    if (Ask(SelectMesh)) {
        return Refused;
    }
    constexpr std::size_t EntityAndPlace = 2;  // what was picked, and where
    std::vector<AutomationValue> picked = {std::monostate(), std::monostate(), "Select Mesh: "};
    ObjectOf(AcadDoc->Get("Utility"))->Call("GetEntity", picked, EntityAndPlace);
    const Object mesh = ObjectOf(picked.front());
    std::size_t columns = 0;
    if (CheckMesh(*mesh, columns)) {
        return Refused;
    }
    ReadMeshCoordinates(*mesh, columns);
    return Passed;
}

Outcome CAutoCAD::CheckMesh(AutomationObject& mesh, std::size_t& columns) {
    const auto n = As<std::int32_t>(mesh.Get("NVertexCount"));
    if (As<std::int32_t>(mesh.Get("MVertexCount")) != 2 || n < 2) {
        return Refused;
    }
    if (As<bool>(mesh.Get("MClose"))) {
        ShowPlain(boxes_, Message(MeshIsClosed));
        return Refused;
    }
    columns = static_cast<std::size_t>(n);
    return Passed;
}

void CAutoCAD::ReadMeshCoordinates(AutomationObject& mesh, std::size_t columns) {
    const auto numbers = As<std::vector<double>>(mesh.Get("Coordinates"));
    constexpr std::size_t Rows = 2;
    if (numbers.size() != 3 * Rows * columns) {
        throw AutomationError("the mesh has not as many coordinates as vertices");
    }
    MeshList1 = MeshList2 = C3DPoints();
    for (std::size_t i = 0; i < numbers.size(); i += 3) {
        C3DPoints& row = i < 3 * columns ? MeshList1 : MeshList2;
        const C3DPoint& point = row.Add({numbers[i], numbers[i + 1], numbers[i + 2], CornerRuleStation});
        if (!std::isfinite(point.x) || !std::isfinite(point.y) || !std::isfinite(point.z)) {
            throw AutomationError("a coordinate of the mesh is no number");
        }
    }
}

Outcome ConnectGlobalAcad(WindowContext& context) {
    context.acad = std::make_shared<CAutoCAD>(context.automation, context.ui, context.files, context.options);
    if (context.acad->ConnectToAcad()) {
        ShowPlain(context.ui, context.Message(NoCadDrawing));
        return Refused;
    }
    return Passed;
}

Outcome TransferToAcad(WindowContext& context) {
    try {
        return context.acad->TransferTempFile(TransferFile(context));
    } catch (const std::exception& error) {
        ShowPlain(context.ui, "The transfer to AutoCAD has come to an end before all was drawn",
                  Printable(ReasonOf(error)));
        return Refused;
    }
}

std::optional<CRuleSurf> MeshFromAcad(WindowContext& context) {
    if (ConnectGlobalAcad(context)) {
        return std::nullopt;
    }
    std::string fault;
    try {
        if (context.acad->GetAcadMeshObject() == Passed) {
            ShowPlain(context.ui, context.Message(SuitableMesh));
            CRuleSurf surface;
            surface.List1 = std::make_shared<C3DPoints>(context.acad->MeshList1);
            surface.List2 = std::make_shared<C3DPoints>(context.acad->MeshList2);
            return surface;
        }
    } catch (const AutomationError& error) {
        fault = Printable(error.what());  // what was picked is no mesh, or nothing was picked
    }
    ShowPlain(context.ui, context.Message(NoSuitableMesh), fault);
    return std::nullopt;
}

}  // namespace korvet
