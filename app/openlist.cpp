#include "app/openlist.h"

#include <QAbstractItemView>
#include <QComboBox>

void adjustOpenList(QComboBox &box)
{
    if (box.view()->isVisible()) {
        box.hidePopup();
        box.showPopup();
    }
}
