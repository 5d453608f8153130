#include "project/widgets/ProjectTreeModel.h"

#include "framework/widgets/CommandIcon.h"
#include "project/CTPFTreeView.h"

#include <array>

namespace dyeworks {

namespace {

/// By their index in a node.
constexpr std::array<const char*, CTPFTreeView::kImageCount> kIcons{
    "node-pictures", "node-folder",  "node-note", "node-mark", "node-project",
    "node-picture",  "node-palette", "node-link", "node-value"};

} // namespace

ProjectTreeModel::ProjectTreeModel(ProjectTree& tree, QObject* parent)
    : QAbstractItemModel(parent)
    , tree_(tree) {
    for (const char* const name : kIcons)
        icons_.push_back(commandIcon(QString::fromLatin1(name)));
    tree_.setListener(this);
}

ProjectTreeModel::~ProjectTreeModel() {
    tree_.setListener(nullptr);
}

QModelIndex ProjectTreeModel::indexOf(const ProjectNode* node) const {
    return node == nullptr ? QModelIndex() : createIndex(static_cast<int>(tree_.rowOf(*node)), 0, node);
}

const ProjectNode* ProjectTreeModel::nodeOf(const QModelIndex& index) {
    return static_cast<const ProjectNode*>(index.constInternalPointer());
}

QModelIndex ProjectTreeModel::index(int row, int column, const QModelIndex& parent) const {
    const auto& nodes = tree_.childrenOf(nodeOf(parent));
    if (column != 0 || row < 0 || static_cast<std::size_t>(row) >= nodes.size())
        return {};
    return createIndex(row, column, nodes[static_cast<std::size_t>(row)].get());
}

QModelIndex ProjectTreeModel::parent(const QModelIndex& index) const {
    const ProjectNode* const node = nodeOf(index);
    return node == nullptr ? QModelIndex() : indexOf(node->parent);
}

int ProjectTreeModel::rowCount(const QModelIndex& parent) const {
    return static_cast<int>(tree_.childrenOf(nodeOf(parent)).size());
}

int ProjectTreeModel::columnCount(const QModelIndex& /*parent*/) const {
    return 1;
}

QVariant ProjectTreeModel::data(const QModelIndex& index, int role) const {
    const ProjectNode* const node = nodeOf(index);
    if (node == nullptr)
        return {};
    if (role == Qt::DisplayRole)
        return QString::fromStdString(node->text);
    // Plug-ins may number icons that there are not.
    if (role == Qt::DecorationRole && node->image >= 0 && node->image < CTPFTreeView::kImageCount)
        return icons_[static_cast<std::size_t>(node->image)];
    return {};
}

Qt::ItemFlags ProjectTreeModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
}

void ProjectTreeModel::nodesComing(const ProjectNode* parent, std::size_t first, std::size_t count) {
    beginInsertRows(indexOf(parent), static_cast<int>(first), static_cast<int>(first + count - 1));
}

void ProjectTreeModel::nodesGoing(const ProjectNode* parent, std::size_t first, std::size_t count) {
    beginRemoveRows(indexOf(parent), static_cast<int>(first), static_cast<int>(first + count - 1));
}

void ProjectTreeModel::nodeRenamed(const ProjectNode& node) {
    const QModelIndex index = indexOf(&node);
    Q_EMIT dataChanged(index, index);
}

} // namespace dyeworks
