#include "batch/json_text.h"

#include <array>

#include "core/number_text.h"
#include "core/text_encoding.h"

namespace korvet::batch {
namespace {

std::string Quoted(std::string_view text) {
    constexpr std::string_view Hex = "0123456789abcdef";
    std::string quoted = "\"";
    for (const char c : text) {
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

/// Items joined by commas between two brackets.
template <typename Items, typename ToText>
std::string ListJson(const Items& items, std::string_view separator, ToText toText) {
    std::string text = "[";
    for (const auto& item : items) {
        text.append(text.size() > 1 ? separator : "").append(toText(item));
    }
    return text + "]";
}

std::string CoordinatesJson(const C3DPoint& point) {
    return ShortestText(point.x) + "," + ShortestText(point.y) + "," + ShortestText(point.z);
}

std::string PointsJson(const PointList& list) {
    if (!list) {
        return "null";
    }
    return ListJson(*list, ",", [](const C3DPoint& point) {
        return "[" + CoordinatesJson(point) + "," + std::to_string(point.Flag) + "]";
    });
}

std::string SurfaceJson(const CRuleSurf& surface) {
    const std::array<std::pair<std::string_view, const PointList*>, 5> lists = {
        {{"List1", &surface.List1},
         {"List2", &surface.List2},
         {"List3", &surface.List3},
         {"LapList1", &surface.LapList1},
         {"LapList2", &surface.LapList2}}};
    std::string text = "{";
    for (const auto& [name, list] : lists) {
        text.append(Quoted(name)).append(": ").append(PointsJson(*list)).append(",\n  ");
    }
    text.append("\"RefPoint\": ")
        .append(surface.RefPoint ? "[" + CoordinatesJson(*surface.RefPoint) + "]" : "null")
        .append(", \"RefPointDisplay\": ")
        .append(BooleanText(surface.RefPointDisplay));
    return text + "}";
}

std::string MessageJson(const MessageBox& message) {
    return "{\"title\": " + Quoted(message.title) + ", \"text\": " + Quoted(message.text) +
           ", \"box\": " + (message.box ? std::to_string(*message.box) : "null") + "}";
}

std::string LabelsJson(const InputReport& report) {
    if (!report.labels) {
        return "[]";
    }
    return ListJson(*report.labels, ", ", [](const CLabel& label) { return Quoted(label.LabelString); });
}

}  // namespace

std::string SurfacesJson(const CRuleSurfs& surfaces) {
    return ListJson(surfaces, ",\n ", SurfaceJson);
}

std::string ReportJson(const InputReport& report) {
    const CFittingWindow* window = report.window;
    std::string text = "{\"file\": " + QuotedOrNull(DecodeText(report.file));
    text += ",\n\"category\": " + QuotedOrNull(report.category);
    text += ",\n\"window\": " + (window != nullptr ? Quoted(window->Row().window) : "null");
    text += ",\n\"type\": " + (window != nullptr ? std::to_string(window->dtype + 1) : "null");
    text += ",\n\"labels\": " + LabelsJson(report);
    text += ",\n\"messages\": " + ListJson(report.messages, ",\n ", MessageJson);
    text.append(",\n\"refused\": ").append(BooleanText(report.refused));
    text += ",\n\"model\": " + report.model;
    text += ",\n\"pattern\": " + report.pattern + "}";
    return text;
}

}  // namespace korvet::batch
