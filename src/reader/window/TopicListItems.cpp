#include "reader/window/TopicListItems.h"

#include "base/CodePage.h"
#include "base/ItemAt.h"

#include <string_view>
#include <utility>

namespace ls {

namespace {

// A header line may be as long as its file. The list shows only what fits on any screen.
std::string_view ShownPart(std::string_view text)
{
    constexpr std::size_t longest = 500;
    return text.substr(0, longest);
}

} // namespace

void TopicListItems::SetItems(std::vector<TopicListItem> items)
{
    beginResetModel();
    m_items = std::move(items);
    endResetModel();
}

int TopicListItems::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant TopicListItems::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const TopicListItem& item = *ItemAt(m_items, index.row());
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        return QString::fromStdString(FromBook(ShownPart(item.text)));
    }
    if (role == Qt::UserRole) {
        return item.itemData;
    }
    return {};
}

} // namespace ls
