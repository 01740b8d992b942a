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

/// Moves topics to another place in the book. The author first selects the topics, then the one to put them
/// after.
class MoveTopicsForm : public QDialog
{
    Q_OBJECT

public:
    /// Afterwards `TopicsRearranged` says whether topics were moved. Cancel in either step changes nothing.
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
    std::vector<int> m_selected; ///< the topics selected in step 1; empty during that step
};

} // namespace ls
