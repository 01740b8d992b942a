#pragma once

#include "authoring/EditSource.h"
#include "authoring/TopicTable.h"

#include <QDialog>

#include <memory>
#include <vector>

namespace Ui {
class DelTopicForm;
}

namespace ls {

struct Book;
struct TopicFlags;

/// Removes and restores topics. Each topic of the book has a box, which is checked if the topic is removed.
class DelTopicForm : public QDialog, public EditSource
{
    Q_OBJECT

public:
    /// Lists the topics in the order of the main window's list. O.K. does what the boxes say and sets
    /// `TopicListStale`; Cancel changes nothing.
    DelTopicForm(QWidget* parent, Book& book, TopicFlags& flags, bool alphabetic);
    ~DelTopicForm() override;

    void AddRunningEdits(RunningEdits& edits) override;

private:
    void Form_Load(bool alphabetic);
    void OKButton_Click();
    [[nodiscard]] std::vector<RemovalChoice> Choices() const;

    std::unique_ptr<Ui::DelTopicForm> m_ui;
    Book& m_book;
    TopicFlags& m_flags;
};

} // namespace ls
