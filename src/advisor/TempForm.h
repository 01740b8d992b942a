#pragma once

#include <QDialog>

#include <memory>
#include <string>
#include <vector>

namespace Ui {
class TempForm;
}

namespace ls {

/// A row of the results window's list. Texts are UTF-8.
struct TempFormRow
{
    int line = 0; ///< of the text, from 1; shown when the row is chosen
    std::string text;
};

/// The results window: the text of a logic block to read and copy, and below it what the book check finds in
/// it. Choosing a row shows its line.
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
