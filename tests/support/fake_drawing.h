// A running drawing program that is none: it writes down every call, and answers as the test says.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/number_text.h"
#include "window/automation.h"

namespace korvet {

/// What all objects of the drawing program share.
struct FakeDrawing {
    bool running = true;
    std::vector<std::string> calls;  ///< "Object.Member(arguments)", in order
    std::vector<std::string> layers = {"0", "Notes"};
    std::int32_t activeSpace = 1;
    std::vector<double> picked = {100, 200, 5};   ///< the point that the user picks
    std::map<std::string, AutomationValue> mesh;  ///< properties of the object that the user selects
    std::string fails;                            ///< the member that fails, "Object.Member"
};

inline std::string Shown(const AutomationValue& value) {
    struct Show {
        std::string operator()(std::monostate) const { return "-"; }
        std::string operator()(bool truth) const { return truth ? "true" : "false"; }
        std::string operator()(std::int32_t number) const { return std::to_string(number); }
        std::string operator()(double number) const { return ShortestText(number); }
        std::string operator()(const std::string& text) const { return "\"" + text + "\""; }
        std::string operator()(const std::vector<double>& numbers) const {
            std::string text;
            for (const double number : numbers) {
                text += (text.empty() ? "" : " ") + ShortestText(number);
            }
            return "[" + text + "]";
        }
        std::string operator()(const std::shared_ptr<AutomationObject>&) const { return "object"; }
    };
    return std::visit(Show(), value);
}

class FakeObject final : public AutomationObject {
  public:
    FakeObject(FakeDrawing& drawing, std::string name) : drawing_(drawing), name_(std::move(name)) {}

    [[nodiscard]] AutomationValue Get(const std::string& member) override {
        Look(member);
        if (name_ == "Mesh") {
            return Property(drawing_.mesh, member);
        }
        const std::map<std::string, AutomationValue> properties = {
            {"Application.Version", "15.0s (LMS Tech)"},
            {"Document.ActiveSpace", drawing_.activeSpace},
            {"Layers.Count", static_cast<std::int32_t>(drawing_.layers.size())}};
        const std::map<std::string, std::string> objects = {{"Application.ActiveDocument", "Document"},
                                                            {"Document.Utility", "Utility"},
                                                            {"Document.Layers", "Layers"},
                                                            {"Document.ModelSpace", "ModelSpace"},
                                                            {"Document.PaperSpace", "PaperSpace"}};
        const auto object = objects.find(name_ + "." + member);
        if (object != objects.end()) {
            return Made(object->second);
        }
        return name_ == "Layer" && member == "Name" ? AutomationValue(layer_)
                                                    : Property(properties, name_ + "." + member);
    }

    void Put(const std::string& member, const AutomationValue& value) override {
        Look(member);
        drawing_.calls.push_back(name_ + "." + member + " = " + Shown(value));
    }

    AutomationValue Call(const std::string& member, std::vector<AutomationValue>& arguments,
                         std::size_t results) override {
        Look(member);
        if (member == "Item") {  // looked at, not done
            auto layer = std::make_shared<FakeObject>(drawing_, "Layer");
            layer->layer_ =
                drawing_.layers.at(static_cast<std::size_t>(std::get<std::int32_t>(arguments.at(0))));
            return std::shared_ptr<AutomationObject>(layer);
        }
        std::string call = name_ + "." + member + "(";
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            call += (i == 0 ? "" : ", ") + Shown(arguments[i]);
        }
        drawing_.calls.push_back(call + ")");
        if (member == "GetPoint") {
            return drawing_.picked;
        }
        if (member == "GetEntity") {
            if (results != 2) {
                throw AutomationError("two results are given back");
            }
            arguments[0] = Made("Mesh");
            arguments[1] = std::vector<double>{1, 2, 3};
        }
        return member.starts_with("Add") ? Made(member.substr(3)) : AutomationValue();
    }

  private:
    void Look(const std::string& member) const {
        if (!drawing_.running || drawing_.fails == name_ + "." + member) {
            throw AutomationError(name_ + "." + member + " has failed");
        }
    }

    AutomationValue Made(const std::string& name) const {
        return std::shared_ptr<AutomationObject>(std::make_shared<FakeObject>(drawing_, name));
    }

    static AutomationValue Property(const std::map<std::string, AutomationValue>& properties,
                                    const std::string& name) {
        const auto property = properties.find(name);
        return property != properties.end() ? property->second : throw AutomationError("there is no " + name);
    }

    FakeDrawing& drawing_;
    std::string name_;
    std::string layer_;
};

class FakeAutomation final : public Automation {
  public:
    FakeDrawing drawing;
    std::vector<std::string> asked;  ///< the names that were looked for

    [[nodiscard]] std::shared_ptr<AutomationObject> Running(const std::string& progId) override {
        asked.push_back(progId);
        return drawing.running ? std::make_shared<FakeObject>(drawing, "Application") : nullptr;
    }
};

}  // namespace korvet
