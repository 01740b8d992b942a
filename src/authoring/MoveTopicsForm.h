#pragma once

#include "base/Seams.h"
#include "book/TopicList.h"

#include <QDialog>

#include <memory>
#include <string>
#include <vector>

namespace Ui {
class MoveTopicsForm;
}

namespace ls {

struct Book;
struct TopicFlags;

/// Moves topics to another place of the book, in two steps: which ones, and behind which.
class MoveTopicsForm : public QDialog
{
    Q_OBJECT

public:
    /// `TopicsRearranged` tells afterwards whether a move was done; Cancel changes nothing in either step.
    MoveTopicsForm(QWidget* parent, Book& book, TopicFlags& flags, const Seams& seams);
    ~MoveTopicsForm() override;

private:
    void Form_Load();
    void DoneButton_Click();
    void TakeTopics();
    void TakeTarget();
    void Refuse(const std::string& message);

    std::unique_ptr<Ui::MoveTopicsForm> m_ui;
    Book& m_book;
    TopicFlags& m_flags;
    Seams m_seams;
    std::vector<TopicListItem> m_movable;
    std::vector<int> m_selected; ///< the topics of step 1; empty in that step
};

} // namespace ls
