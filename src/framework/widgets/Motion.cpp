#include "framework/widgets/Motion.h"

#include <QApplication>
#include <QStyle>

namespace dyeworks {

bool motionIsWelcome() {
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

} // namespace dyeworks
