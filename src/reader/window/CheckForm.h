#pragma once

#include <QDialog>

#include <memory>
#include <optional>

namespace Ui {
class CheckForm;
}

namespace ls {

struct CheckedBook;

/// The findings of a book check: one line for each, and below the list the whole sentence of the selected
/// one.
class CheckForm : public QDialog
{
    Q_OBJECT

public:
    /// `checked` outlives the form.
    CheckForm(QWidget* parent, const CheckedBook& checked);
    ~CheckForm() override;

    /// The finding whose topic the user wants to see; nothing if the form was just closed.
    [[nodiscard]] std::optional<std::size_t> Chosen() const { return m_chosen; }

private:
    void Form_Load();
    void FillList();
    [[nodiscard]] int SelectedRow() const;
    void FindingList_Change();
    void GoButton_Click();

    std::unique_ptr<Ui::CheckForm> m_ui;
    const CheckedBook& m_checked;
    std::optional<std::size_t> m_chosen;
};

} // namespace ls
