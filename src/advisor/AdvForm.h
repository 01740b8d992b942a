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

/// The advisor's window: one question at a time with its choices, and in the end the advice.
class AdvForm : public QDialog, private AdvisorView
{
    Q_OBJECT

public:
    /// For the topic on show, which must have a logic block.
    AdvForm(QWidget* parent, Book& book, AdvisorTables& tables, const Seams& seams);
    ~AdvForm() override;

    /// Loads the logic, with the boxes that this may bring, and shows the window until it is closed. A fault
    /// that ends the program meanwhile keeps it from coming up.
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
    std::vector<std::string> m_choices; ///< of the list, as book text
    AdvisorDialog m_dialog;
};

} // namespace ls
