#include "views/result_tree_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <algorithm>

#include "views/icons.h"

namespace borvik {

namespace {

bool sameTree(const TreeNode& a, const TreeNode& b) {
    return a.text == b.text && a.opens == b.opens && a.name == b.name && a.needsLoadsY == b.needsLoadsY &&
           std::equal(a.children.begin(), a.children.end(), b.children.begin(), b.children.end(), sameTree);
}

bool showsResults(const TreeNode& node) {
    return node.opens == NodeOpens::Table || node.opens == NodeOpens::Picture ||
           node.opens == NodeOpens::DetailedResults || node.opens == NodeOpens::Notes ||
           (node.opens == NodeOpens::Groups || node.opens == NodeOpens::Opinion);
}

/// What the arrow keys show in passing, because it opens no window.
bool showsInPlace(const TreeNode& node) {
    return node.opens == NodeOpens::Table || node.opens == NodeOpens::Picture || node.opens == NodeOpens::Notes ||
           (node.opens == NodeOpens::Groups || node.opens == NodeOpens::Opinion);
}

constexpr int kOutOfReach = Qt::UserRole;

/// Greys a node that is out of reach, also when it is the chosen one.
class NodeDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(kOutOfReach).toBool()) option->state &= ~QStyle::State_Enabled;
    }
};

}  // namespace

ResultTreeView::ResultTreeView(const QString& name, QWidget* parent) : QTreeWidget(parent) {
    setObjectName(name);
    setHeaderHidden(true);
    setItemDelegate(new NodeDelegate(this));
    setUniformRowHeights(true);
    setColumnCount(1);
    setAccessibleName(tr("Input and results"));
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) { choose(item); });
}

void ResultTreeView::add(QTreeWidgetItem* parent, const TreeNode& node) {
    auto* item = new QTreeWidgetItem(QStringList(QString::fromStdString(node.text)));
    if (parent == nullptr) {
        addTopLevelItem(item);
    } else {
        parent->addChild(item);
    }
    if (node.opens == NodeOpens::InputForm) item->setIcon(0, pictureIcon(Picture::Form));
    if (node.opens == NodeOpens::Table || node.opens == NodeOpens::DetailedResults || node.opens == NodeOpens::Notes ||
        (node.opens == NodeOpens::Groups || node.opens == NodeOpens::Opinion))
        item->setIcon(0, pictureIcon(Picture::Table));
    if (node.opens == NodeOpens::Picture) item->setIcon(0, pictureIcon(Picture::Diagram));
    nodes_.insert(item, &node);
    for (const TreeNode& child : node.children) add(item, child);
}

void ResultTreeView::showTree(const TreeNode& root) {
    if (!nodes_.isEmpty() && sameTree(root, root_)) return;
    const QString selected = currentItem() != nullptr ? currentItem()->text(0) : QString();
    nodes_.clear();
    clear();
    root_ = root;
    add(nullptr, root_);
    topLevelItem(0)->setSizeHint(0, {0, fontMetrics().height() + 2});  // and so all rows
    expandAll();
    if (QTreeWidgetItem* again = itemOf(selected)) setCurrentItem(again);
    QTreeWidgetItem* last = topLevelItem(0);
    while (last->childCount() > 0) last = last->child(last->childCount() - 1);
    scrollToItem(last);
}

void ResultTreeView::setResultsReachable(bool reachable) {
    for (auto entry = nodes_.cbegin(); entry != nodes_.cend(); ++entry)
        if (showsResults(*entry.value())) {
            entry.key()->setForeground(
                0, palette().color(reachable ? QPalette::Active : QPalette::Disabled, QPalette::Text));
            entry.key()->setData(0, kOutOfReach, !reachable);
        }
}

QTreeWidgetItem* ResultTreeView::itemOf(const QString& text) const {
    const auto found = findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.constFirst();
}

void ResultTreeView::choose(QTreeWidgetItem* item, bool byWalking) {
    const TreeNode* node = nodes_.value(item);
    if (node == nullptr || node->opens == NodeOpens::Nothing) return;
    const TreeNode chosen = *node;  // the tree may be filled anew by what follows
    Q_EMIT nodeChosen(chosen, byWalking);
}

/// F1 belongs to a node that opens something, before the menu that has the same key.
bool ResultTreeView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1) {
        const TreeNode* node = nodes_.value(currentItem());
        if (node != nullptr && node->opens != NodeOpens::Nothing) event->accept();
    }
    return QTreeWidget::event(event);
}

void ResultTreeView::keyPressEvent(QKeyEvent* event) {
    if (const TreeNode* node = nodes_.value(currentItem()); node != nullptr && event->key() == Qt::Key_F1) {
        Q_EMIT helpWanted(*node);
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space) {
        choose(currentItem());
        return;
    }
    const QTreeWidgetItem* before = currentItem();
    QTreeWidget::keyPressEvent(event);
    QTreeWidgetItem* now = currentItem();
    const TreeNode* node = nodes_.value(now);
    if (now != before && node != nullptr && showsInPlace(*node)) choose(now, true);
}

}  // namespace borvik
