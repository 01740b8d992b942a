#pragma once

#include <QDialog>

#include <memory>
#include <string>
#include <vector>

namespace Ui {
class TempForm;
}

namespace ls {

/// A row in the list of the results window. Texts are UTF-8.
struct TempFormRow
{
    int line = 0; ///< of the text, from 1; selected when the row is chosen
    std::string text;
};

/// The results window: shows the text of a logic block to read and copy, and below it the findings of the
/// book check. Choosing a finding shows its line.
class TempForm : public QDialog
{
    Q_OBJECT

public:
    /// The text is UTF-8, its lines separated by CR LF.
    TempForm(QWidget* parent, const std::string& text, std::vector<TempFormRow> rows);
    ~TempForm() override;

private:
    void ShowRows();
    void FindingsList_Click(int row);
    void CloseButton_Click();

    std::unique_ptr<Ui::TempForm> m_ui;
    std::vector<TempFormRow> m_rows;
};

} // namespace ls
