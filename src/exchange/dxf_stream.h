// The entities of a drawing file as text.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/file_store.h"
#include "core/points.h"
#include "exchange/dxf_groups.h"
#include "exchange/dxf_heading.h"
#include "exchange/transfer_file.h"

namespace korvet {

/// Which end of a text stands at its point (group 72).
enum class TextJustification : int { Left = 0, Centre = 1, Right = 2 };

/// Builds the text of an ASCII drawing file that has an ENTITIES section and nothing else, of group pairs as
/// DxfGroups writes them. Coordinates, radii and arc angles are rounded to 6 places, halves to even. Layer
/// names and texts are given as UTF-8.
///
/// Points are in the user's unit. All operations throw ArithmeticError for a number that is not finite.
class DxfStream {
  public:
    /// A text without any entity. `textSize` is the height of every TEXT, in the user's unit, and goes out
    /// unrounded. The sink, if there is one, takes the text in large pieces as it grows.
    explicit DxfStream(double textSize, TextSink sink = {});

    /// A stream without text: each entity is handed out as ReadTransferFile would find it in the text.
    DxfStream(double textSize, EntitySink take);

    /// The bytes of the text so far, those that the sink has taken too.
    [[nodiscard]] std::size_t Size() const { return taken_ + groups_.Text().size(); }

    /// The box about all entities so far, texts by the points they stand at; nothing without
    /// any, or without text.
    [[nodiscard]] const std::optional<DxfExtents>& Extents() const { return extents_; }

    /// Closes the section and gives what no sink has taken: without one, the whole file. The stream is empty
    /// afterwards.
    [[nodiscard]] std::string Finish();

    /// LINE from a to b.
    void WriteLine(const C3DPoint& a, const C3DPoint& b, std::string_view layer);

    /// ARC counter-clockwise from `start` to `end`. Its radius is the distance from the centre to `start`.
    void WriteArc(const C3DPoint& start, const C3DPoint& end, const C3DPoint& centre, std::string_view layer);

    /// TEXT at `point`, turned counter-clockwise by `angle` (radians; written in degrees, unrounded).
    void WriteText(std::string_view text, const C3DPoint& point, double angle, std::string_view layer,
                   TextJustification justification);

    /// POLYLINE through all points of the list.
    void WritePolyline(const C3DPoints& list, std::string_view layer);

    /// Polygon mesh of 2 by n vertices: the first n points of `list1`, then of `list2`, n being the smaller
    /// count, which is List1's own wherever the lists are as a surface has them.
    void WriteMesh(const C3DPoints& list1, const C3DPoints& list2, std::string_view layer);

  private:
    void WritePoint(int xCode, const C3DPoint& point);
    void WriteEntity(std::string_view name, std::string_view layer);
    void WriteVertex(const C3DPoint& point, std::string_view layer);

    void TakeIn(const C3DPoint& point);

    template <typename Shape>
    void HandOut(std::string_view layer, Shape shape);

    double textSize_;
    TextSink sink_;
    EntitySink take_;
    std::size_t taken_ = 0;  ///< bytes that the sink has
    DxfGroups groups_;
    std::optional<DxfExtents> extents_;
};

}  // namespace korvet
