// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QUrl>

class QWidget;

/// What the home page is told before it runs: where to find the program, its texts in the language of the
/// user, the colours and font of a widget, and the examples that are installed. All else it asks for over the
/// web channel. GUI thread only.
class WelcomePage
{
    Q_DECLARE_TR_FUNCTIONS(WelcomePage)

public:
    [[nodiscard]] static QUrl url();

    /// The page takes it when the recent projects are on the screen.
    [[nodiscard]] static QString title();
    [[nodiscard]] static QJsonObject data(const QWidget &widget);

private:
    [[nodiscard]] static QJsonObject texts();
    [[nodiscard]] static QJsonArray examples();
};
