#include "exchange/cut_drawing.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/constants.h"
#include "core/file_store.h"
#include "core/math_module.h"
#include "core/number_text.h"
#include "exchange/dxf_lines.h"

namespace korvet {
namespace {

constexpr int EntityCode = 0;

/// The groups of one entity that a place or a shape stands in.
struct Entity {
    std::string_view kind;
    std::vector<std::pair<int, double>> numbers = {};

    [[nodiscard]] double At(int code) const {
        const auto found = std::find_if(numbers.begin(), numbers.end(),
                                        [&](const auto& number) { return number.first == code; });
        if (found == numbers.end()) {
            throw FileError("the drawing has a " + std::string(kind) + " without its group " +
                            std::to_string(code));
        }
        return found->second;
    }

    [[nodiscard]] C3DPoint Point(int code) const { return {At(code), At(code + 10)}; }
};

/// Gathers the curves of one part.
class PartReader {
  public:
    PartReader(PieceCurves& curves, const DxfPart& part) : curves_(curves), part_(part) {
        entity_ = curves.empty() ? 0 : curves.back().entity + 1;
    }

    void Read(std::string_view text) {
        DxfLines lines(text);
        Entity entity;
        while (const auto codeLine = lines.Next()) {
            const auto code = ParseWholeNumber(*codeLine, 0, 9999);
            const auto value = lines.Next();
            if (!code || !value) {
                throw FileError("the drawing has a group without a code or a value");
            }
            if (*code == EntityCode) {
                Take(entity);
                entity.kind = *value;
                entity.numbers.clear();
            } else if (const auto number = ParseNumber(*value)) {
                entity.numbers.emplace_back(*code, *number);
            }
        }
        Take(entity);
    }

  private:
    void Take(const Entity& entity) {
        if (entity.kind == "LINE") {
            Add(LineCurve(entity.Point(10), entity.Point(11)));
            ++entity_;
        } else if (entity.kind == "ARC") {
            Add(ArcOf(entity));
            ++entity_;
        } else if (entity.kind == "VERTEX") {
            vertices_.push_back(entity.Point(10));
        } else if (entity.kind == "SEQEND") {
            for (std::size_t i = 1; i < vertices_.size(); ++i) {
                Add(LineCurve(vertices_[i - 1], vertices_[i]));
            }
            vertices_.clear();
            ++entity_;
        }
    }

    static CutCurve ArcOf(const Entity& entity) {
        const double from = entity.At(50);
        double sweep = std::fmod(entity.At(51) - from, 360);
        sweep = sweep > 0 ? sweep : sweep + 360;
        return ArcCurve(entity.Point(10), entity.At(40), DegToRad(from), DegToRad(sweep));
    }

    void Add(const CutCurve& curve) { curves_.push_back({curve, part_.piece, part_.part, entity_}); }

    PieceCurves& curves_;
    const DxfPart& part_;
    std::vector<C3DPoint> vertices_;
    std::size_t entity_ = 0;
};

}  // namespace

PieceCurves ReadPieceCurves(std::string_view text, const std::vector<DxfPart>& parts) {
    PieceCurves curves;
    for (const DxfPart& part : parts) {
        PartReader(curves, part).Read(text.substr(part.begin, part.end - part.begin));
    }
    return curves;
}

}  // namespace korvet
