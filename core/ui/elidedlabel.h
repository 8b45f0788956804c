// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A label of one line of plain text that gives way: in too little room it shows the beginning, and the whole
/// text as its tool tip. text() stays whole.
class ElidedLabel : public QLabel
{
public:
    explicit ElidedLabel(QWidget *pParent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *pEvent) override;
    void paintEvent(QPaintEvent *pEvent) override;

private:
    [[nodiscard]] QSize sizeFor(const QString &strLine) const;
    [[nodiscard]] QString shownText() const;
};
