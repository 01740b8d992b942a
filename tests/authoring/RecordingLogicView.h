#pragma once

#include "authoring/LogicView.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace ls::test {

/// A `LogicView` without a window: keeps its boxes and lists as plain values.
class RecordingLogicView : public LogicView
{
public:
    [[nodiscard]] std::string Text(LogicBox box) const override { return texts[Index(box)]; }
    void SetText(LogicBox box, const std::string& text) override { texts[Index(box)] = text; }
    void Enable(LogicBox box, bool on) override { enabled[Index(box)] = on; }
    void InsertIntoLogic(const std::string& text) override { texts[Index(LogicBox::Logic)] += text; }
    void SetVariables(const std::vector<std::string>& names) override
    {
        variables = names;
        variable = -1;
    }
    void SetChoices(const std::vector<std::string>& names) override
    {
        choices = names;
        choice = -1;
    }
    void AppendVariable(const std::string& name) override { variables.push_back(name); }
    void AppendChoice(const std::string& name) override { choices.push_back(name); }
    void RemoveVariable(int index) override { variables.erase(variables.begin() + index); }
    void RemoveChoice(int index) override { choices.erase(choices.begin() + index); }
    void SelectVariable(int index) override { variable = index; }
    void SelectChoice(int index) override { choice = index; }
    void GoTo(LogicBox box, int line) override { wentTo.push_back({box, line}); }
    void ShowSpecification(const std::string& text) override { specifications.push_back(text); }

    [[nodiscard]] std::string& operator[](LogicBox box) { return texts[Index(box)]; }
    [[nodiscard]] bool Takes(LogicBox box) const { return enabled[Index(box)]; }

    struct Place
    {
        LogicBox box;
        int line;
        friend bool operator==(const Place&, const Place&) = default;
    };

    std::array<std::string, 3> texts;
    std::array<bool, 3> enabled = {true, true, true};
    std::vector<std::string> variables;
    std::vector<std::string> choices;
    int variable = -1;
    int choice = -1;
    std::vector<Place> wentTo;
    std::vector<std::string> specifications;

private:
    static std::size_t Index(LogicBox box) { return static_cast<std::size_t>(box); }
};

} // namespace ls::test
