#pragma once

#include "book/TopicList.h"

#include <QAbstractListModel>

namespace ls {

/// The entries of `TopicList`: the first 500 characters of each text, and the topic's number as item data.
/// All entries are set in one step, so that a book of 30,000 topics appears without delay.
class TopicListItems : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void SetItems(std::vector<TopicListItem> items);
    [[nodiscard]] const std::vector<TopicListItem>& Items() const { return m_items; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<TopicListItem> m_items;
};

} // namespace ls
