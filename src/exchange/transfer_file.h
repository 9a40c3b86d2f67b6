// The drawing that goes to a plotter or into a drawing program, read back from the transfer file.
#pragma once

#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/points.h"

namespace korvet {

/// A transfer file is not what was written; what() names the line and says what is wrong with it.
class TransferError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct TransferLine {
    C3DPoint a;
    C3DPoint b;
};

/// Counter-clockwise; angles in degrees.
struct TransferArc {
    C3DPoint centre;
    double radius = 0;
    double start = 0;
    double end = 0;
};

struct TransferText {
    C3DPoint point;  ///< the alignment point where the file has one
    double size = 0;
    int justification = 0;  ///< 0 left, 1 centre, 2 right
    std::string text;       ///< UTF-8
    double angle = 0;       ///< degrees
};

/// A line through its points, or a mesh of `rows` by `columns` of them, row by row.
struct TransferPolyline {
    C3DPoints points;
    std::size_t rows = 0;  ///< 0: no mesh
    std::size_t columns = 0;
};

struct TransferEntity {
    std::string layer;
    std::variant<TransferLine, TransferArc, TransferText, TransferPolyline> shape;
};

/// Takes the entities of a drawing one after the other.
using EntitySink = std::function<void(TransferEntity)>;

/// Hands the entities of a drawing to a sink.
using EntitySource = std::function<void(const EntitySink&)>;

/// The entities of a drawing that CDXF has written, in their order. Their groups are taken by position, as
/// CDXF puts them, so that no name of a layer and no text is mistaken for a code; other entities are passed
/// over. Escaped letters of layers and texts are letters again. Coordinates are in the user's unit. Throws
/// TransferError for a value that is no number and for a text that ends before its last line, "EOF".
std::vector<TransferEntity> ReadTransferFile(std::string_view text);

/// Hands the same entities to `take`, one after the other; those before a fault have been handed over when it
/// throws.
void ReadTransferFile(std::string_view text, const EntitySink& take);

}  // namespace korvet
