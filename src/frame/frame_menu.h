// Menus and tool bar of the main frame as data, in their order.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "window/armed_modes.h"

namespace korvet {

/// The text of a string resource, by its key as text ("1001"); a text that is no key is given back as it is.
std::string ResString(std::string_view keyOrText);

struct MenuEntry {
    std::string_view menu;     ///< control name of the menu it stands in; empty for the top menus themselves
    std::string_view name;     ///< control name; empty for a separator
    std::string_view caption;  ///< key of a string resource, or the text itself
    bool checkable = false;
    std::string_view shortcut = {};  ///< as the desktop writes it ("Ctrl+N"); empty: none
};

/// Top menus, each with its entries behind it, in the order of the menu bar.
std::span<const MenuEntry> FrameMenu();

struct ToolButton {
    int position;              ///< on the tool bar, from 1; positions between are separators
    std::string_view key;      ///< what a click dispatches on
    std::string_view toolTip;  ///< key of a string resource, or the text itself
    std::string_view menu;     ///< control name of the menu entry that does the same; empty: none does
    bool checkable = false;
    std::string_view shortcut = {};      ///< of a button that no menu entry stands for; empty: none
    std::optional<MouseMode> mode = {};  ///< that it arms, and while which it stays pressed
};

std::span<const ToolButton> FrameToolBar();

}  // namespace korvet
