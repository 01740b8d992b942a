#pragma once

#include "book/TopicList.h"

#include <QAbstractListModel>

namespace ls {

/// The entries of `TopicList`: the first 500 characters of their texts, and each topic's number as its item
/// data. The whole list is set
/// at once, so that a book of 30,000 topics fills it without delay.
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
