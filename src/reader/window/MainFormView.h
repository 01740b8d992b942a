#pragma once

#include "base/FormSeams.h"
#include "base/Seams.h"
#include "reader/window/MainView.h"
#include "reader/window/TopicListItems.h"
#include "render/pane/TopicDisplay.h"

#include <functional>

class QMainWindow;

namespace Ui {
class MainForm;
}

namespace ls {

struct Global;

/// Gives the rules of the main window access to its controls.
class MainFormView : public MainView
{
public:
    MainFormView(QMainWindow& form, Ui::MainForm& ui, Global& global, const Seams& seams,
                 const FormSeams& forms);

    /// True while the program itself selects a list entry; the list's change event must then do nothing.
    [[nodiscard]] bool SettingList() const { return m_settingList; }

    void VScroll1_Change() { m_display.VScroll1_Change(); }
    void PaneHeight_Change() { m_display.PaneHeight_Change(); }

    /// Runs `showAgain`, which shows the topic again, and restores the selection.
    void KeepSelection(const std::function<void()>& showAgain) { m_display.KeepSelection(showAgain); }

    /// Like `KeepSelection`, and scrolls back to the text that was at the top.
    void KeepPlace(const std::function<void()>& showAgain) { m_display.KeepPlace(showAgain); }

    void SetTopicList(const TopicListModel& model) override;
    void SelectItem(int index) override;
    [[nodiscard]] int SelectedItem() const override;
    [[nodiscard]] int ItemCount() const override;
    [[nodiscard]] TopicListItem Item(int index) const override;
    [[nodiscard]] bool Alphabetic() const override;
    void CheckOrder(bool alphabetic) override;
    [[nodiscard]] int LineWidthChars() const override;
    void ShowLines(ShownTopic& shown) override;
    void ClearPane() override;
    void ShowExplainButton(bool visible) override;
    void ShowTopicControls(bool visible) override;
    void SetDefault(DefaultButton button) override;
    void ShowFileForm() override;
    void ShowXrefForm() override;
    [[nodiscard]] bool ShowTxEdForm() override;
    [[nodiscard]] bool ShowLgEdForm() override;
    void ShowDelTopicForm() override;
    void ShowMoveTopicsForm() override;
    void ShowAdvForm() override;
    void ShowInfoForm() override;
    [[nodiscard]] std::unique_ptr<Progress> WatchScan() override;
    [[nodiscard]] std::unique_ptr<Progress> WatchCheck() override;
    [[nodiscard]] std::optional<std::size_t> ShowCheckForm(const CheckedBook& checked) override;
    [[nodiscard]] std::unique_ptr<Progress> WatchSave(const std::string& path) override;

private:
    void SetUpList();
    void SetUpButtons();

    QMainWindow& m_form;
    Ui::MainForm& m_ui;
    Global& m_global;
    Seams m_seams;
    FormSeams m_forms;
    TopicListItems m_items;
    TopicDisplay m_display;
    bool m_settingList = false;
};

} // namespace ls
