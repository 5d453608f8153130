#include "Desktop.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMessageBox>

namespace dyeworks {

namespace {

using MessageBoxes = Desktop;

QMessageBox& box(QWidget& dialog) {
    return dynamic_cast<QMessageBox&>(dialog);
}

Person::Step press(Qt::Key key) {
    return [key](QWidget& dialog) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&dialog, &event);
    };
}

} // namespace

TEST_F(MessageBoxes, AnswerTheButtonTheKeyAndTheClosing) {
    using Answer = MessageAnswer;
    using Button = std::pair<QMessageBox::StandardButton, Answer>;
    const Button ok{QMessageBox::Ok, Answer::Ok};
    const Button cancel{QMessageBox::Cancel, Answer::Cancel};
    const Button yes{QMessageBox::Yes, Answer::Yes};
    const Button no{QMessageBox::No, Answer::No};
    const std::tuple<MessageButtons, std::vector<Button>, Answer, Answer> cases[] = {
        {MessageButtons::Ok, {ok}, Answer::Ok, Answer::Ok},
        {MessageButtons::OkCancel, {ok, cancel}, Answer::Ok, Answer::Cancel},
        {MessageButtons::YesNo, {yes, no}, Answer::Yes, Answer::No},
        {MessageButtons::YesNoCancel, {yes, no, cancel}, Answer::Yes, Answer::Cancel}};
    for (const auto& [buttons, shown, onEnter, onClose] : cases) {
        std::vector<std::pair<Person::Step, Answer>> ways{{press(Qt::Key_Return), onEnter},
                                                          {press(Qt::Key_Escape), onClose},
                                                          {[](QWidget& dialog) { dialog.close(); }, onClose}};
        for (const auto& [button, answer] : shown) {
            ways.emplace_back(
                [which = button, count = static_cast<qsizetype>(shown.size())](QWidget& dialog) {
                    EXPECT_EQ(box(dialog).buttons().size(), count);
                    box(dialog).button(which)->click();
                },
                answer);
        }
        const Message message{"Save?", "", buttons, MessageIcon::Question, MessageOwner::MainWindow};
        for (const auto& [way, answer] : ways) {
            const Person person({way});
            EXPECT_EQ(platform_.messages().show(message), answer);
        }
        platform_.setInteractive(false);
        EXPECT_EQ(platform_.messages().show(message), onClose);
        platform_.setInteractive(true);
    }
}

TEST_F(MessageBoxes, ShowMarkupAsItStandsUnderTheGivenCaptionAndIcon) {
    const Person person({[](QWidget& dialog) {
        EXPECT_EQ(box(dialog).textFormat(), Qt::PlainText);
        EXPECT_EQ(box(dialog).text(), QStringLiteral("<b>a</b> & b\n\"c\""));
        EXPECT_EQ(box(dialog).windowTitle(), QStringLiteral("[TLF]"));
        EXPECT_EQ(box(dialog).icon(), QMessageBox::Critical);
        dialog.close();
    }});
    platform_.messages().show(
        {"<b>a</b> & b\n\"c\"", "[TLF]", MessageButtons::Ok, MessageIcon::Stop, MessageOwner::None});
}

} // namespace dyeworks
