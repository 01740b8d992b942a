#pragma once

#include "check/Finding.h"

#include <QDialog>

#include <memory>
#include <string>
#include <vector>

namespace Ui {
class TempForm;
}

namespace ls {

/// The results window: the text of a logic block to read and copy, and below it what the book check finds in
/// it. A finding that is chosen shows its line.
class TempForm : public QDialog
{
    Q_OBJECT

public:
    /// The text is UTF-8, its lines parted by CR LF; those of the findings count in it.
    TempForm(QWidget* parent, const std::string& text, const std::vector<Finding>& findings);
    ~TempForm() override;

private:
    void ShowFindings();
    void FindingsList_Click(int row);
    void CloseButton_Click();

    std::unique_ptr<Ui::TempForm> m_ui;
    std::vector<Finding> m_findings;
};

} // namespace ls
