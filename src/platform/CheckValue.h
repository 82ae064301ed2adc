#pragma once
#include <QCheckBox>

// A check box's value as the settings hold it: 0 unticked, 1 ticked, 2 grey.
inline int checkValue(const QCheckBox* box)
{
    switch (box->checkState()) {
    case Qt::Checked: return 1;
    case Qt::PartiallyChecked: return 2;
    default: return 0;
    }
}

inline void setCheckValue(QCheckBox* box, int value)
{
    if (value == 2)
        box->setTristate(true);
    box->setCheckState(value == 1 ? Qt::Checked : value == 2 ? Qt::PartiallyChecked : Qt::Unchecked);
}
