// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QUrl>

class QWidget;

/// The data that the home page gets before its scripts run: the address of the web channel, the translated
/// texts, the colors and the font of a widget, and the installed examples. The page asks for everything else
/// over the web channel. GUI thread only.
class WelcomePage
{
    Q_DECLARE_TR_FUNCTIONS(WelcomePage)

public:
    [[nodiscard]] static QUrl url();

    /// The page sets this title when it has drawn the recent projects.
    [[nodiscard]] static QString title();
    [[nodiscard]] static QJsonObject data(const QWidget &widget);

private:
    [[nodiscard]] static QJsonObject texts();
    [[nodiscard]] static QJsonArray examples();
};
