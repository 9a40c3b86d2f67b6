#include "batch/json_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "core/checked.h"
#include "core/number_text.h"
#include "core/text_encoding.h"

namespace korvet::batch {
namespace {

/// Gathers small pieces of a text into large ones.
class Gathered {
  public:
    explicit Gathered(const TextSink& sink) : sink_(sink) {}

    void Put(std::string_view piece) {
        constexpr std::size_t Enough = 1U << 18U;
        text_ += piece;
        if (text_.size() >= Enough) {
            HandOver();
        }
    }

    void HandOver() {
        sink_(text_);
        text_.clear();
    }

  private:
    const TextSink& sink_;
    std::string text_;
};

std::string Quoted(std::string_view text) {
    constexpr std::string_view Hex = "0123456789abcdef";
    std::string quoted = "\"";
    for (const char c : ValidText(text)) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            quoted.append(1, '\\').append(1, c);
        } else if (byte < 0x20) {
            quoted.append("\\u00").append(1, Hex[byte >> 4U]).append(1, Hex[byte & 15U]);
        } else {
            quoted.append(1, c);
        }
    }
    return quoted + "\"";
}

/// The text quoted, or null when it is empty.
std::string QuotedOrNull(std::string_view text) {
    return text.empty() ? "null" : Quoted(text);
}

std::string_view BooleanText(bool value) {
    return value ? "true" : "false";
}

/// Puts items one by one, with commas between them, between two brackets.
template <typename Items, typename PutItem>
void PutList(Gathered& text, const Items& items, std::string_view separator, PutItem putItem) {
    text.Put("[");
    bool isFirst = true;
    for (const auto& item : items) {
        text.Put(isFirst ? "" : separator);
        isFirst = false;
        putItem(item);
    }
    text.Put("]");
}

std::string CoordinatesJson(const C3DPoint& point) {
    return ShortestText(point.x) + "," + ShortestText(point.y) + "," + ShortestText(point.z);
}

void PutPoints(Gathered& text, const PointList& list) {
    if (!list) {
        text.Put("null");
        return;
    }
    PutList(text, *list, ",", [&text](const C3DPoint& point) {
        text.Put("[" + CoordinatesJson(point) + "," + std::to_string(point.Flag) + "]");
    });
}

std::array<std::pair<std::string_view, const PointList*>, 5> ListsOf(const CRuleSurf& surface) {
    return {{{"List1", &surface.List1},
             {"List2", &surface.List2},
             {"List3", &surface.List3},
             {"LapList1", &surface.LapList1},
             {"LapList2", &surface.LapList2}}};
}

void PutSurface(Gathered& text, const CRuleSurf& surface) {
    text.Put("{");
    for (const auto& [name, list] : ListsOf(surface)) {
        text.Put(Quoted(name) + ": ");
        PutPoints(text, *list);
        text.Put(",\n  ");
    }
    text.Put("\"RefPoint\": ");
    text.Put(surface.RefPoint ? "[" + CoordinatesJson(*surface.RefPoint) + "]" : "null");
    text.Put(", \"RefPointDisplay\": ");
    text.Put(BooleanText(surface.RefPointDisplay));
    text.Put("}");
}

/// The surfaces of the model or of the pattern; none when there is no such thing.
void PutSurfaces(Gathered& text, const CRuleSurfs* surfaces) {
    PutList(text, surfaces != nullptr ? *surfaces : CRuleSurfs(), ",\n ",
            [&text](const CRuleSurf& surface) { PutSurface(text, surface); });
}

std::string MessageJson(const MessageBox& message) {
    return "{\"title\": " + Quoted(message.title) + ", \"text\": " + Quoted(message.text) +
           ", \"detail\": " + QuotedOrNull(message.detail) +
           ", \"box\": " + (message.box ? std::to_string(*message.box) : "null") + "}";
}

std::string CountsJson(const std::vector<std::pair<std::string_view, std::size_t>>& counts) {
    std::string text;
    for (const auto& [name, count] : counts) {
        text += (text.empty() ? "" : ", ") + Quoted(name) + ": " + std::to_string(count);
    }
    return text;
}

std::string NumberJson(std::string_view name, const std::optional<double>& value) {
    return ", " + Quoted(name) + ": " + (value && std::isfinite(*value) ? ShortestText(*value) : "null");
}

void PutCheck(Gathered& text, const ExportCheck& check) {
    const CutCheck& cut = check.cut;
    const CutOnPurpose& meant = cut.onPurpose;
    text.Put("{\"passed\": ");
    text.Put(BooleanText(cut.faults.empty()));
    text.Put(", " + CountsJson({{"pieces", cut.pieces},
                                {"bends", cut.bends},
                                {"holes", cut.holes},
                                {"lapFolds", cut.lapFolds}}));
    text.Put(NumberJson("cutLength", cut.cutLength) + NumberJson("area", cut.area) +
             NumberJson("lapFoldLength", cut.lapFoldLength) + NumberJson("widestGap", cut.widestGap) +
             ",\n ");
    text.Put(CountsJson({{"openOutlines", cut.openOutlines},
                         {"openHoles", cut.openHoles},
                         {"holesOutside", cut.holesOutside},
                         {"doubled", cut.doubled},
                         {"zeroLength", cut.zeroLength}}));
    text.Put(",\n \"onPurpose\": {" + CountsJson({{"foldsOnEdges", meant.foldsOnEdges},
                                                  {"repeatedFolds", meant.repeatedFolds},
                                                  {"lastSegments", meant.lastSegments},
                                                  {"sharedCuts", meant.sharedCuts},
                                                  {"seams", meant.seams},
                                                  {"points", meant.points},
                                                  {"openLines", meant.openLines}}));
    text.Put("},\n " + CountsJson({{"finerSegs", static_cast<std::size_t>(check.finerSegs)}}) +
             NumberJson("fromPoints", cut.fromPoints) + NumberJson("fromFiner", check.fromFiner) +
             ", \"faults\": ");
    PutList(text, cut.faults, ", ", [&text](const std::string& fault) { text.Put(Quoted(fault)); });
    text.Put("}");
}

}  // namespace

void RequireFinite(const CRuleSurfs& surfaces) {
    const auto require = [](const C3DPoint& point) {
        for (const double coordinate : {point.x, point.y, point.z}) {
            (void)Finite(coordinate, "a coordinate");
        }
    };
    for (const CRuleSurf& surface : surfaces) {
        for (const auto& [name, list] : ListsOf(surface)) {
            if (*list) {
                std::for_each((*list)->begin(), (*list)->end(), require);
            }
        }
        if (surface.RefPoint) {
            require(*surface.RefPoint);
        }
    }
}

void WriteReport(const InputReport& report, const TextSink& sink) {
    const CFittingWindow* window = report.window;
    const ModelAndPattern* surfaces = report.surfaces;
    Gathered text(sink);
    text.Put("{\"file\": " + QuotedOrNull(DecodeText(report.file)));
    if (!report.row.empty()) {
        text.Put(",\n\"name\": " + Quoted(report.row));
    }
    text.Put(",\n\"category\": " + QuotedOrNull(report.category));
    text.Put(",\n\"window\": " + (window != nullptr ? Quoted(window->Row().window) : "null"));
    text.Put(",\n\"type\": " + (window != nullptr ? std::to_string(window->dtype + 1) : "null"));
    text.Put(",\n\"labels\": ");
    PutList(text, report.labels ? *report.labels : CLabels(), ", ",
            [&text](const CLabel& label) { text.Put(Quoted(label.LabelString)); });
    text.Put(",\n\"messages\": ");
    PutList(text, report.messages, ",\n ",
            [&text](const MessageBox& message) { text.Put(MessageJson(message)); });
    text.Put(",\n\"refused\": ");
    text.Put(BooleanText(report.refused));
    text.Put(",\n\"model\": ");
    PutSurfaces(text, surfaces != nullptr ? &surfaces->model : nullptr);
    text.Put(",\n\"pattern\": ");
    PutSurfaces(text, surfaces != nullptr ? &surfaces->pattern : nullptr);
    if (report.tellsCheck) {
        text.Put(",\n\"check\": ");
        if (report.check != nullptr) {
            PutCheck(text, *report.check);
        } else {
            text.Put("null");
        }
    }
    text.Put("}");
    text.HandOver();
}

}  // namespace korvet::batch
