#pragma once

#include "project/ProjectTree.h"

#include <QAbstractItemModel>
#include <QIcon>

#include <vector>

namespace dyeworks {

/// The nodes of a project's tree as Qt's item views take them.
class ProjectTreeModel : public QAbstractItemModel, private ProjectTreeListener {
    Q_OBJECT

public:
    /// Listens to the tree, which must outlive the model.
    explicit ProjectTreeModel(ProjectTree& tree, QObject* parent = nullptr);
    ~ProjectTreeModel() override;

    /// Invalid for null.
    [[nodiscard]] QModelIndex indexOf(const ProjectNode* node) const;
    /// Null for an invalid index.
    [[nodiscard]] static const ProjectNode* nodeOf(const QModelIndex& index);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void nodesComing(const ProjectNode* parent, std::size_t first, std::size_t count) override;
    void nodesCame() override { endInsertRows(); }
    void nodesGoing(const ProjectNode* parent, std::size_t first, std::size_t count) override;
    void nodesWent() override { endRemoveRows(); }
    void nodeRenamed(const ProjectNode& node) override;

    ProjectTree& tree_;
    std::vector<QIcon> icons_; ///< By their index in a node.
};

} // namespace dyeworks
