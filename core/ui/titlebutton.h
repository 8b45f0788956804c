// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <QStyleOptionButton>

/// A flat button that every style draws raised while the mouse is over it.
class TitleButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void initStyleOption(QStyleOptionButton *pOption) const override
    {
        QPushButton::initStyleOption(pOption);
        if (pOption->state & QStyle::State_MouseOver)
            pOption->features &= ~QStyleOptionButton::Flat;
    }
};
