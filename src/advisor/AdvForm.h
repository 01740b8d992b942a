#pragma once

#include "advisor/AdvisorDialog.h"
#include "advisor/AdvisorView.h"

#include <QDialog>

#include <memory>
#include <string>
#include <vector>

namespace Ui {
class AdvForm;
}

namespace ls {

struct AdvisorTables;
struct Book;

/// The advisor's window: shows one question at a time with its choices, and at the end the advice.
class AdvForm : public QDialog, private AdvisorView
{
    Q_OBJECT

public:
    /// The topic on show must have a logic block.
    AdvForm(QWidget* parent, Book& book, AdvisorTables& tables, const Seams& seams);
    ~AdvForm() override;

    /// Loads the logic, which may show boxes, then shows the window until it is closed. If a fault ends the
    /// program during loading, the window is not shown.
    void Run();

private:
    void ShowQuestion(const Question& question) override;
    void ShowAdvice(const std::string& identifier, const std::string& text) override;
    void ShowText(const std::string& text) override;
    void SetButtonCaption(const std::string& caption) override;
    void Unload() override;

    void SetHeightForLines(int lines);
    void NextButton_Click();
    void FocusNext();

    std::unique_ptr<Ui::AdvForm> m_ui;
    Seams m_seams;
    std::vector<std::string> m_choices; ///< those in the list, as book text
    AdvisorDialog m_dialog;
};

} // namespace ls
