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

/// What the commands of the main window need from it. Its calls cause no events: the list's change event is
/// only for choices of the user.
class MainView
{
public:
    virtual ~MainView() = default;

    virtual void SetTopicList(const TopicListModel& model) = 0;
    virtual void SelectItem(int index) = 0;
    [[nodiscard]] virtual int SelectedItem() const = 0; ///< from 0; -1 for none
    [[nodiscard]] virtual int ItemCount() const = 0;
    [[nodiscard]] virtual TopicListItem Item(int index) const = 0;

    /// Whether `AlphaItem` is checked; otherwise `ContentsItem` is.
    [[nodiscard]] virtual bool Alphabetic() const = 0;
    virtual void CheckOrder(bool alphabetic) = 0;

    [[nodiscard]] virtual int LineWidthChars() const = 0;

    /// Shows a topic's lines from the first one on, and shows or hides `XRButton` and `AdvisorButton` as
    /// `shown` asks. May put old lines into `shown` in exchange, so that the next topic reuses their memory.
    virtual void ShowLines(ShownTopic& shown) = 0;

    /// Empties the pane, hides and resets the scroll bar, hides `XRButton` and `AdvisorButton`.
    virtual void ClearPane() = 0;

    virtual void ShowExplainButton(bool visible) = 0;

    /// Shows or hides what a plain text file cannot use: the list with its label, Go To, the Index menu and
    /// the items for next topic, previous topic and export.
    virtual void ShowTopicControls(bool visible) = 0;

    virtual void SetDefault(DefaultButton button) = 0;

    /// Shows the file form, which uses the shared file-dialog variables. Returns when it is closed.
    virtual void ShowFileForm() = 0;

    /// Runs the advisor for the topic on show. Returns when its window is closed.
    virtual void ShowAdvForm() = 0;

    /// Shows the cross references of the topic on show. Returns when the form is closed.
    virtual void ShowXrefForm() = 0;

    /// Shows the text editor for the topic on show. Returns when it is closed: true for Done.
    [[nodiscard]] virtual bool ShowTxEdForm() = 0;

    /// Shows the logic editor for the topic on show. Returns when it is closed: true for Done.
    [[nodiscard]] virtual bool ShowLgEdForm() = 0;

    /// Shows the form that removes and restores topics. Returns when it is closed.
    virtual void ShowDelTopicForm() = 0;

    /// Shows the form that moves topics. Returns when it is closed.
    virtual void ShowMoveTopicsForm() = 0;

    /// Shows the book's properties. Returns when they are closed.
    virtual void ShowInfoForm() = 0;

    /// Shows the progress of scanning a long book while the result lives. May be null.
    [[nodiscard]] virtual std::unique_ptr<Progress> WatchScan() = 0;

    /// The same for checking the book; the user may cancel.
    [[nodiscard]] virtual std::unique_ptr<Progress> WatchCheck() { return nullptr; }

    /// Shows the findings of a check. Returns when the form is closed: the finding whose topic the user wants
    /// to see, if any.
    [[nodiscard]] virtual std::optional<std::size_t> ShowCheckForm(const CheckedBook& /*checked*/)
    {
        return std::nullopt;
    }

    /// The same as `WatchCheck` for writing a book into the file `path`.
    [[nodiscard]] virtual std::unique_ptr<Progress> WatchSave(const std::string& path) = 0;
};

} // namespace ls
