#include "batch/catalogue_text.h"

#include "frame/catalogue.h"

namespace korvet::batch {
namespace {

void AppendOptions(std::string& text, const std::string& name, std::span<const std::string_view> captions) {
    for (std::size_t i = 0; i < captions.size(); ++i) {
        text.append("    ").append(name).append(" ").append(std::to_string(i + 1)).append("  ");
        text.append(captions[i]).append("\n");
    }
}

void AppendTypes(std::string& text, const WindowTable& table) {
    for (std::size_t type = 0; type < table.pages.size(); ++type) {
        text += "    Type " + std::to_string(type + 1) +
                (static_cast<int>(type) == table.firstDtype ? "  (at the start)" : "") + "\n";
        for (const BoxEntry& box : table.pages[type].boxes) {
            text.append("        box").append(std::to_string(box.index)).append("  ");
            text.append(box.label).append("  (sample ").append(box.sample).append(")\n");
        }
    }
    AppendOptions(text, "pattern option", table.patternSelect);
    AppendOptions(text, "flush side", table.flushSide);
}

}  // namespace

std::string CatalogueText() {
    std::string text;
    for (const CatalogueRow& row : Catalogue) {
        text.append(row.category).append("  ").append(row.window).append("\n");
        AppendTypes(text, *row.table);
    }
    return text;
}

}  // namespace korvet::batch
