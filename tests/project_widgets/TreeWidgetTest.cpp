#include "../project/ProjectTestHost.h"
#include "core/TlfFormat.h"
#include "core/TmfImage.h"
#include "project/widgets/CNodeDropSource.h"
#include "project/widgets/DragCursors.h"
#include "project/widgets/ProjectTreeWidget.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHelpEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <gmock/gmock.h>

#include <random>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The tree of "c:\p\sea.tpf" on the screen, its pictures listed.
class TreeWidget : public ProjectFixture {
protected:
    void show(const std::vector<std::string>& pictures) {
        openPictures(pictures);
        widget_.emplace(document_);
        widget_->resize(200, 300);
        widget_->view().InitialUpdate();
        tree().expand(at("\\Project\\Picture"));
        widget_->show();
        host_.log.clear();
    }
    [[nodiscard]] QTreeView& tree() { return *widget_; }
    [[nodiscard]] QModelIndex at(const std::string& path) {
        const auto& model = static_cast<const ProjectTreeModel&>(*tree().model());
        return model.indexOf(widget_->view().tree().FindNode(path));
    }
    [[nodiscard]] QPoint middleOf(const std::string& path) { return tree().visualRect(at(path)).center(); }
    [[nodiscard]] std::string current() { return tree().currentIndex().data().toString().toStdString(); }
    [[nodiscard]] QString tipAt(const std::string& path) {
        const QPoint point = middleOf(path);
        QHelpEvent event(QEvent::ToolTip, point, tree().viewport()->mapToGlobal(point));
        QApplication::sendEvent(tree().viewport(), &event);
        return QToolTip::text();
    }
    /// Drags the picture to the point and drops it there. False when nothing was dropped.
    [[nodiscard]] bool drop(const std::string& picture, const QPoint& point,
                            Qt::KeyboardModifiers keys = {}) {
        enter(picture);
        QDropEvent event(point, kAll, &data_, Qt::LeftButton, keys);
        QApplication::sendEvent(tree().viewport(), &event);
        return event.isAccepted();
    }
    /// What moving there is answered with; none where nothing may be dropped.
    [[nodiscard]] Qt::DropAction moveTo(const QPoint& point, Qt::KeyboardModifiers keys = {}) {
        QDragMoveEvent event(point, kAll, &data_, Qt::LeftButton, keys);
        QApplication::sendEvent(tree().viewport(), &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }
    void enter(const std::string& picture) {
        tree().setCurrentIndex(at("\\Project\\Picture\\" + picture));
        data_.setText(QString::fromStdString(widget_->view().dragData().value()));
        QDragEnterEvent event({1, 1}, kAll, &data_, Qt::LeftButton, {});
        QApplication::sendEvent(tree().viewport(), &event);
        EXPECT_TRUE(event.isAccepted());
    }
    [[nodiscard]] QImage screen() { return tree().viewport()->grab().toImage(); }

    static constexpr Qt::DropActions kAll = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    std::optional<ProjectTreeWidget> widget_;
    QMimeData data_;
};

TEST_F(TreeWidget, EveryClickSelectsOneNodeWhateverKeysAreHeld) {
    show({"A", "B"});
    QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&tree(), &focus);
    EXPECT_EQ(current(), "Project");
    EXPECT_TRUE(tree().selectionModel()->isSelected(at("\\Project")));
    const QPoint a = middleOf("\\Project\\Picture\\A");
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        QTest::mouseClick(tree().viewport(), button, {}, middleOf("\\Project\\Picture\\B"));
        QTest::mouseClick(tree().viewport(), button, Qt::ControlModifier, a);
        QTest::mouseClick(tree().viewport(), button, Qt::ControlModifier, a);
        EXPECT_TRUE(tree().selectionModel()->isSelected(at("\\Project\\Picture\\A")));
        EXPECT_EQ(tree().selectionModel()->selectedIndexes().size(), 1);
        EXPECT_EQ(widget_->view().tree().selected()->text, "A");
    }
    // The button that closes a node does not select it.
    const QRect pictures = tree().visualRect(at("\\Project\\Picture"));
    const QPoint button(pictures.left() - tree().indentation() / 2, pictures.center().y());
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, button);
    EXPECT_FALSE(tree().isExpanded(at("\\Project\\Picture")));
    EXPECT_EQ(current(), "Picture") << "of what is hidden the selection moves up";
}

TEST_F(TreeWidget, OpensAPictureByDoubleClickAndReturn) {
    fake_.files.putFile("c:\\p\\A.tlf", "x");
    show({"A"});
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, middleOf("\\Project\\Picture\\A"));
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, middleOf("\\Project\\Picture\\A"));
    host_.log.clear();
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, middleOf("\\Project\\Picture\\A"));
    EXPECT_THAT(host_.take(), ElementsAre("palette c:\\p\\A.tlf"));
    QTest::keyClick(&tree(), Qt::Key_Return);
    EXPECT_THAT(host_.take(), ElementsAre("palette c:\\p\\A.tlf"));
    QTest::keyClick(&tree(), Qt::Key_Up);
    QTest::keyClick(&tree(), Qt::Key_Return);
    EXPECT_EQ(current(), "Picture");
    EXPECT_THAT(host_.take(), IsEmpty());
}

TEST_F(TreeWidget, MenuOpensAtThePointerOrInTheCorner) {
    show({"A"});
    QSignalSpy asked(&*widget_, &ProjectTreeWidget::contextMenuRequested);
    const QPoint global(321, 123);
    for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
        QContextMenuEvent event(reason, {3, 4}, global);
        QApplication::sendEvent(tree().viewport(), &event);
    }
    ASSERT_EQ(asked.size(), 2);
    EXPECT_EQ(asked[0][0].toPoint(), global);
    EXPECT_EQ(asked[1][0].toPoint(), tree().viewport()->mapToGlobal(QPoint(5, 5)));
}

TEST_F(TreeWidget, DraggingMovesCopiesAndMarks) {
    show({"A", "B", "C"});
    tree().setCurrentIndex(at("\\Project\\Picture\\A"));
    const QImage before = screen();
    enter("A");
    const QPoint c = middleOf("\\Project\\Picture\\C");
    EXPECT_EQ(moveTo(c), Qt::MoveAction);
    EXPECT_EQ(moveTo(c, Qt::ControlModifier), Qt::CopyAction);
    EXPECT_EQ(moveTo({tree().viewport()->width() - 1, c.y()}), Qt::MoveAction) << "beside the label";
    const QImage marked = screen();
    const int edge = tree().visualRect(at("\\Project\\Picture\\C")).bottom() + 1;
    for (int y = 0; y < before.height(); ++y) {
        const QRgb inverted = before.pixel(0, y) ^ 0x00FFFFFFU;
        const bool inMark = y == edge - 1 || y == edge;
        EXPECT_EQ(marked.pixel(0, y), inMark ? inverted : before.pixel(0, y)) << y;
    }
    // Below all nodes nothing may be dropped; the mark stays.
    EXPECT_EQ(moveTo({c.x(), tree().viewport()->height() - 1}), Qt::IgnoreAction);
    EXPECT_EQ(screen(), marked);
    const QRect pictures = tree().visualRect(at("\\Project\\Picture"));
    EXPECT_EQ(moveTo({pictures.left() - tree().indentation() / 2, pictures.center().y()}), Qt::IgnoreAction)
        << "on the button";
    EXPECT_EQ(moveTo(pictures.center()), Qt::MoveAction);
    EXPECT_NE(screen(), marked);
    data_.clear();
    data_.setImageData(QImage(1, 1, QImage::Format_RGB32));
    EXPECT_EQ(moveTo(c), Qt::IgnoreAction) << "no text";
    QDragLeaveEvent leave;
    QApplication::sendEvent(tree().viewport(), &leave);
    EXPECT_EQ(screen(), before);

    enter("A");
    EXPECT_EQ(moveTo(middleOf("\\Project\\Picture\\A")), Qt::IgnoreAction) << "onto itself";
    EXPECT_FALSE(drop("A", middleOf("\\Project")));
    EXPECT_EQ(screen(), before);
    EXPECT_TRUE(drop("A", c, Qt::ControlModifier));
    EXPECT_THAT(document_.pictureNames(), ElementsAre("A", "B", "C", "A0"));
    EXPECT_EQ(current(), "A");
}

TEST_F(TreeWidget, APlugInMayOutlastTheDragThatItIsAskedAbout) {
    show({"A"});
    ASSERT_TRUE(document_.AddNode("Notes", 2, "\\Project", 0U));
    enter("A");
    const QPoint notes = middleOf("\\Project\\Notes");
    EXPECT_EQ(moveTo(notes), Qt::LinkAction);
    QWidget* const viewport = tree().viewport();
    const std::function<void()> ends[] = {[viewport] {
                                              QDragLeaveEvent leave;
                                              QApplication::sendEvent(viewport, &leave);
                                          },
                                          [this] { widget_.reset(); }};
    for (const auto& end : ends) {
        enter("A");
        host_.onCall = [&] {
            EXPECT_EQ(moveTo(notes), Qt::IgnoreAction) << "is not asked twice at a time";
            end();
        };
        QDropEvent drop(notes, kAll, &data_, Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &drop);
        EXPECT_FALSE(drop.isAccepted());
        EXPECT_THAT(host_.take(), testing::Not(testing::Contains(testing::HasSubstr(" on "))));
    }
}

TEST_F(TreeWidget, TipShowsThePictureWhenBothFilesAreThere) {
    show({"A<b>", "B"});
    EXPECT_EQ(tipAt("\\Project"), QStringLiteral("c:\\p\\sea.tpf"));
    EXPECT_FALSE(tipAt("\\Project\\Picture\\B").contains(QStringLiteral("<img")));
    TmfImage image;
    TlutData palette;
    ASSERT_TRUE(image.create(48, 32, 8) && palette.create(256, ColourType::Rgba));
    ASSERT_TRUE(image.saveTmf("c:\\p\\B.tmf"));
    fake_.files.putFile("c:\\p\\B.tlf", serialiseTlf(palette).value().bytes());
    const QString tip = tipAt("\\Project\\Picture\\B");
    EXPECT_TRUE(tip.startsWith(QStringLiteral("<b>B</b><br>B.tmf + B.tlf (0)<br><img ")))
        << tip.toStdString();
    EXPECT_TRUE(tip.contains(QStringLiteral("width=\"96\" height=\"64\""))) << tip.toStdString();
    EXPECT_TRUE(tipAt("\\Project\\Picture\\A<b>").startsWith(QStringLiteral("<b>A&lt;b&gt;</b>")));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(TreeWidget, CursorsTellTheEffectsApartAtEveryScale) {
    for (const qreal scale : {1.0, 2.0}) {
        const QImage move = dragCursor(Qt::MoveAction, scale).toImage();
        const QImage copy = dragCursor(Qt::CopyAction, scale).toImage();
        const QImage link = dragCursor(Qt::LinkAction, scale).toImage();
        EXPECT_EQ(move.size(), QSize(32, 32) * scale);
        EXPECT_TRUE(move != copy && copy != link && link != move);
    }
    constexpr std::uint32_t kAllEffects = drop_effect::kMove | drop_effect::kCopy | drop_effect::kLink;
    EXPECT_EQ(CNodeDropSource::GiveFeedback(kAllEffects), Qt::MoveAction);
    EXPECT_EQ(CNodeDropSource::GiveFeedback(kAllEffects & ~drop_effect::kMove), Qt::CopyAction);
    EXPECT_EQ(CNodeDropSource::GiveFeedback(drop_effect::kLink), Qt::LinkAction);
    EXPECT_EQ(CNodeDropSource::GiveFeedback(8), Qt::IgnoreAction);
}

TEST_F(TreeWidget, ModelTellsEveryChangeAsItHappens) {
    show({"A", "B", "C"});
    const QAbstractItemModelTester tester(tree().model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(11); // NOLINT(cert-msc51-cpp): the same run every time.
    const auto any = [&random](std::uint32_t below) { return static_cast<std::uint32_t>(random()) % below; };
    const std::string parents[] = {"\\Project", "\\Project\\Picture", "\\Project\\n1", "\\none"};
    for (int step = 0; step < 600; ++step) {
        const std::string& parent = parents[any(4)];
        const std::string name = "n" + std::to_string(any(6));
        const std::vector<std::string>& order = document_.projectFile().order;
        switch (any(6)) {
        case 0:
            document_.AddNode(name, static_cast<std::int32_t>(any(12)) - 1, parent, any(4));
            break;
        case 1:
            document_.AddNode(name, 5, parent, std::string());
            break;
        case 2:
            document_.RenameNode(name, any(4), parent);
            break;
        case 3:
            document_.RemoveNode(name, parent);
            break;
        case 4:
            document_.AddPicture(name, "", "", 0, std::nullopt, true);
            break;
        default:
            if (!order.empty())
                document_.RemovePicture(order[any(static_cast<std::uint32_t>(order.size()))]);
            break;
        }
        if (any(3) == 0)
            QTest::keyClick(&tree(), any(2) == 0 ? Qt::Key_Down : Qt::Key_Up);
        ASSERT_EQ(ProjectTreeModel::nodeOf(tree().currentIndex()), widget_->view().tree().selected());
    }
}

} // namespace
} // namespace dyeworks
