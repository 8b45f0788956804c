// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A label for one line of plain text. If there is too little room, it shows the beginning and its tool tip
/// the whole. Line breaks are shown as spaces; text() returns the text unchanged.
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
