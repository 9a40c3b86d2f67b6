// A desktop without a screen, for tests of the main frame: it keeps every call and answers as the test says.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "frame/about.h"
#include "frame/category_menu.h"
#include "frame/frame_desktop.h"
#include "frame/help.h"
#include "frame/recovery.h"
#include "frame/settings_store.h"

namespace korvet {

class RecordingDesktop final : public FrameDesktop {
  public:
    std::vector<std::string> calls;        ///< every call, in order, with what it was about
    std::vector<CFittingWindow*> windows;  ///< those that are on the desktop
    std::set<std::string> openElsewhere;   ///< files that another process holds
    std::optional<std::string> pick;       ///< what the user picks in the category menu; else it is closed
    DrawingDevice* drawingArea = nullptr;  ///< for new windows

    /// Tells the frame which window is active after one has gone.
    std::function<void(CFittingWindow*)> activate;
    std::function<void(SplashDialog&)> onSplash;
    std::function<void(RecoveryDialog&)> onRecovery;

    void ShowWindow(CFittingWindow& window) override {
        calls.push_back("show " + window.controls.caption);
        window.display.DisplayDevice = drawingArea;
        windows.push_back(&window);
    }
    void BringToFront(CFittingWindow& window) override {
        calls.push_back("front " + window.controls.caption);
        if (activate) {
            activate(&window);
        }
    }
    void RemoveWindow(CFittingWindow& window) override {
        calls.push_back("remove " + window.controls.caption);
        std::erase(windows, &window);
        if (activate) {
            activate(windows.empty() ? nullptr : windows.back());
        }
    }
    void Arrange(Arrangement arrangement) override {
        calls.push_back("arrange " + std::to_string(static_cast<int>(arrangement)));
    }
    void Close() override { calls.emplace_back("close"); }
    void RunModal(CategoryMenuDialog& dialog) override {
        calls.emplace_back("category menu");
        dialog.lblCategory = pick.value_or(dialog.lblCategory);
    }
    void RunModal(SplashDialog& dialog) override {
        calls.emplace_back("splash");
        if (onSplash) {
            onSplash(dialog);
        }
    }
    void RunModal(AboutDialog&) override { calls.emplace_back("about"); }
    void RunModal(DisclaimerDialog&) override { calls.emplace_back("disclaimer"); }
    void RunModal(RecoveryDialog& dialog) override {
        calls.emplace_back("recovery");
        if (onRecovery) {
            onRecovery(dialog);
        }
    }
    [[nodiscard]] bool IsFileAlreadyOpen(const std::string& path) const override {
        return openElsewhere.contains(path);
    }
};

class RecordingHelp final : public HelpViewer {
  public:
    bool hasHelp = true;
    std::set<int> topics;            ///< that the help file has
    std::vector<std::string> calls;  ///< what was shown, in order

    [[nodiscard]] bool HasHelp() const override { return hasHelp; }
    void ShowContents() override { calls.emplace_back("contents"); }
    void ShowSearch() override { calls.emplace_back("search"); }
    bool ShowTopic(int contextId) override {
        calls.push_back("topic " + std::to_string(contextId));
        return topics.contains(contextId);
    }
};

class MemorySettings final : public SettingsStore {
  public:
    std::map<std::string, std::string> values;

    [[nodiscard]] std::optional<std::string> Get(const std::string& key) const override {
        const auto value = values.find(key);
        return value == values.end() ? std::nullopt : std::optional(value->second);
    }
    void Set(const std::string& key, const std::string& value) override { values[key] = value; }
};

}  // namespace korvet
