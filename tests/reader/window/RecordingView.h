#pragma once

#include "reader/window/MainView.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace ls::test {

/// A `MainView` without a window: keeps its state as plain values and logs its calls in order.
class RecordingView : public MainView
{
public:
    void SetTopicList(const TopicListModel& model) override
    {
        items = model.items;
        selected = model.selected;
        ++fills;
    }
    void SelectItem(int index) override { selected = index; }
    [[nodiscard]] int SelectedItem() const override { return selected; }
    [[nodiscard]] int ItemCount() const override { return static_cast<int>(items.size()); }
    [[nodiscard]] TopicListItem Item(int index) const override
    {
        return items.at(static_cast<std::size_t>(index));
    }
    [[nodiscard]] bool Alphabetic() const override { return alphabetic; }
    void CheckOrder(bool toAlphabetic) override { alphabetic = toAlphabetic; }
    [[nodiscard]] int LineWidthChars() const override { return width; }
    void ShowLines(ShownTopic& shown) override
    {
        shownName = shown.name;
        lines.clear();
        for (int i = 1; i <= shown.lines.Count; ++i) {
            lines.push_back(shown.lines(i));
        }
        xrefButton = shown.xrefButton;
        advisorButton = shown.advisorButton;
        scrollBar = true;
        ++showings;
    }
    void ClearPane() override
    {
        shownName.clear();
        lines.clear();
        xrefButton = advisorButton = scrollBar = false;
    }
    void ShowExplainButton(bool visible) override { explainButton = visible; }
    void ShowTopicControls(bool visible) override { topicControls = visible; }
    void SetDefault(DefaultButton button) override { defaultButton = button; }
    void ShowFileForm() override
    {
        ++fileForms;
        if (onFileForm) {
            onFileForm();
        }
    }
    void ShowAdvForm() override { ++advForms; }
    void ShowXrefForm() override
    {
        if (onXrefForm) {
            onXrefForm();
        }
    }
    [[nodiscard]] bool ShowTxEdForm() override
    {
        ++textForms;
        return onTxEdForm && onTxEdForm();
    }
    [[nodiscard]] bool ShowLgEdForm() override
    {
        ++logicForms;
        return onLgEdForm && onLgEdForm();
    }
    void ShowDelTopicForm() override
    {
        ++delForms;
        if (onDelTopicForm) {
            onDelTopicForm();
        }
    }
    void ShowMoveTopicsForm() override
    {
        if (onMoveTopicsForm) {
            onMoveTopicsForm();
        }
    }
    void ShowInfoForm() override
    {
        if (onInfoForm) {
            onInfoForm();
        }
    }
    [[nodiscard]] std::unique_ptr<Progress> WatchScan() override
    {
        ++scans;
        return nullptr;
    }
    [[nodiscard]] std::unique_ptr<Progress> WatchSave(const std::string& path) override
    {
        saved = path;
        return saveProgress ? saveProgress() : nullptr;
    }
    [[nodiscard]] std::unique_ptr<Progress> WatchCheck() override
    {
        return checkProgress ? checkProgress() : nullptr;
    }
    [[nodiscard]] std::optional<std::size_t> ShowCheckForm(const CheckedBook& checked) override
    {
        return onCheckForm ? onCheckForm(checked) : std::nullopt;
    }

    [[nodiscard]] std::vector<std::string> ItemTexts() const
    {
        std::vector<std::string> texts;
        for (const TopicListItem& item : items) {
            texts.push_back(item.text);
        }
        return texts;
    }

    std::vector<TopicListItem> items;
    int selected = -1;
    bool alphabetic = false;
    int width = 80;
    std::string shownName;
    std::vector<std::string> lines;
    bool xrefButton = false;
    bool advisorButton = false;
    bool scrollBar = false;
    bool explainButton = false;
    bool topicControls = true;
    DefaultButton defaultButton = DefaultButton::GoTo;
    int fills = 0;
    int showings = 0;
    int fileForms = 0;
    int advForms = 0;
    int scans = 0;
    std::string saved; ///< the file whose saving was watched last
    std::function<std::unique_ptr<Progress>()> saveProgress;
    std::function<std::unique_ptr<Progress>()> checkProgress;
    /// What the user chooses in the list of findings.
    std::function<std::optional<std::size_t>(const CheckedBook&)> onCheckForm;
    std::function<void()> onFileForm; ///< what the user does in the file form
    std::function<void()> onXrefForm; ///< what the user does in the cross-reference view
    int textForms = 0;
    int logicForms = 0;
    int delForms = 0;
    std::function<bool()> onTxEdForm;       ///< what the user does in the text editor; true for Done
    std::function<bool()> onLgEdForm;       ///< what the user does in the logic editor; true for Done
    std::function<void()> onDelTopicForm;   ///< what the user does in the form that removes topics
    std::function<void()> onMoveTopicsForm; ///< what the user does in the form that moves topics
    std::function<void()> onInfoForm;       ///< what the author does in the properties
};

} // namespace ls::test
