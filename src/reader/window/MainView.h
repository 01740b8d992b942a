#pragma once

#include "base/Progress.h"
#include "book/TopicList.h"
#include "render/text/ShowTopic.h"

#include <memory>
#include <optional>
#include <string>

namespace ls {

struct CheckedBook;

/// The button that Enter presses.
enum class DefaultButton
{
    GoTo,
    Done
};

/// The main window as its rules see it: they decide, it only shows. What it is told here it shows without
/// answering by an event: the list's change event is for the user's own choices.
class MainView
{
public:
    virtual ~MainView() = default;

    virtual void SetTopicList(const TopicListModel& model) = 0;
    virtual void SelectItem(int index) = 0;
    [[nodiscard]] virtual int SelectedItem() const = 0; ///< from 0; -1 for none
    [[nodiscard]] virtual int ItemCount() const = 0;
    [[nodiscard]] virtual TopicListItem Item(int index) const = 0;

    /// Whether `AlphaItem` is checked (else `ContentsItem` is).
    [[nodiscard]] virtual bool Alphabetic() const = 0;
    virtual void CheckOrder(bool alphabetic) = 0;

    [[nodiscard]] virtual int LineWidthChars() const = 0;

    /// Shows a topic's lines from the first one on, and `XRButton` and `AdvisorButton` as it says. The lines
    /// may be taken in exchange for others, whose memory the next topic uses.
    virtual void ShowLines(ShownTopic& shown) = 0;

    /// Empties the pane, hides and resets the scroll bar, hides `XRButton` and `AdvisorButton`.
    virtual void ClearPane() = 0;

    virtual void ShowExplainButton(bool visible) = 0;

    /// The list with its label, Go To, the Index menu and the items for the next topic, the previous one and
    /// export: what a plain text file has no use for.
    virtual void ShowTopicControls(bool visible) = 0;

    virtual void SetDefault(DefaultButton button) = 0;

    /// Shows the file form on the shared file-dialog variables and returns when it is closed.
    virtual void ShowFileForm() = 0;

    /// Runs the advisor on the topic on show and returns when its window is closed.
    virtual void ShowAdvForm() = 0;

    /// Shows the cross-reference view for the topic on show and returns when it is closed.
    virtual void ShowXrefForm() = 0;

    /// Shows the text editor for the topic on show and returns when it is closed: true for Done.
    [[nodiscard]] virtual bool ShowTxEdForm() = 0;

    /// Shows the logic editor for the topic on show and returns when it is closed: true for Done.
    [[nodiscard]] virtual bool ShowLgEdForm() = 0;

    /// Shows the form that removes and restores topics and returns when it is closed.
    virtual void ShowDelTopicForm() = 0;

    /// Shows the form that moves topics and returns when it is closed.
    virtual void ShowMoveTopicsForm() = 0;

    /// Shows the book's properties and returns when they are closed.
    virtual void ShowInfoForm() = 0;

    /// Told how far the scan of a long book has come, as long as the scan runs; nothing when nobody watches.
    [[nodiscard]] virtual std::unique_ptr<Progress> WatchScan() = 0;

    /// The same for checking the book, which the user may cancel.
    [[nodiscard]] virtual std::unique_ptr<Progress> WatchCheck() { return nullptr; }

    /// Shows what a check found and returns when the form is closed: the finding to whose topic the user
    /// wants to go, if any.
    [[nodiscard]] virtual std::optional<std::size_t> ShowCheckForm(const CheckedBook& /*checked*/)
    {
        return std::nullopt;
    }

    /// The same for writing a book into the file `path`, which the user may cancel.
    [[nodiscard]] virtual std::unique_ptr<Progress> WatchSave(const std::string& path) = 0;
};

} // namespace ls
