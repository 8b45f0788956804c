// SPDX-License-Identifier: MIT
#include "welcomepage.h"

#include <actionmanager/actionmanager.h>
#include <actionmanager/contextaction.h>
#include <icore.h>
#include <mainwindow.h>

#include <QFileInfo>
#include <QFontInfo>
#include <QJsonArray>
#include <QWebSocketServer>
#include <QWidget>

namespace {

struct Text
{
    const char *pName;
    const char *pText;
};

constexpr Text s_texts[] = {
    {"tagline", QT_TRANSLATE_NOOP("WelcomePage", "Animations for the web, drawn by you")},
    {"newProject", QT_TRANSLATE_NOOP("WelcomePage", "New Project")},
    {"openProject", QT_TRANSLATE_NOOP("WelcomePage", "Open Project")},
    {"recent", QT_TRANSLATE_NOOP("WelcomePage", "Recent Projects")},
    {"noRecent", QT_TRANSLATE_NOOP("WelcomePage", "Projects that you create or open will be listed here.")},
    {"show", QT_TRANSLATE_NOOP("WelcomePage", "Show %1 in its folder")},
    {"remove", QT_TRANSLATE_NOOP("WelcomePage", "Remove %1 from the list")},
    {"removed", QT_TRANSLATE_NOOP("WelcomePage", "%1 was removed from the list.")},
    {"examples", QT_TRANSLATE_NOOP("WelcomePage", "Examples")},
    {"links", QT_TRANSLATE_NOOP("WelcomePage", "On the web")},
    {"homepage", QT_TRANSLATE_NOOP("WelcomePage", "Home Page")},
    {"community", QT_TRANSLATE_NOOP("WelcomePage", "Community")},
    {"demo", QT_TRANSLATE_NOOP("WelcomePage", "Demo Projects")},
    {"youtube", QT_TRANSLATE_NOOP("WelcomePage", "Videos")},
    {"facebook", QT_TRANSLATE_NOOP("WelcomePage", "News")},
    {"version", QT_TRANSLATE_NOOP("WelcomePage", "Version %1")},
    {"lost",
        QT_TRANSLATE_NOOP("WelcomePage", "The page has lost the program and is trying to reach it again.")},
    {"found", QT_TRANSLATE_NOOP("WelcomePage", "The page has reached the program again.")},
};

/// A project in the folder "examples" beside the program; its picture is in the page's resources.
struct Example
{
    const char *pName;
    const char *pTitle;
    const char *pDescription;
};

constexpr Example s_examples[] = {
    {"landscape", QT_TRANSLATE_NOOP("WelcomePage", "Landscape"),
        QT_TRANSLATE_NOOP("WelcomePage", "A morning in layers: hills, clouds and trees")},
    {"banner", QT_TRANSLATE_NOOP("WelcomePage", "Banner"),
        QT_TRANSLATE_NOOP("WelcomePage", "Two scenes for the top of a page")},
    {"card", QT_TRANSLATE_NOOP("WelcomePage", "Card"),
        QT_TRANSLATE_NOOP("WelcomePage", "A card that follows the width of its page")},
};

QString mixed(const QColor &first, const QColor &second, double fSecond)
{
    const auto mix = [&](int nFirst, int nSecond) {
        return qRound(nFirst * (1 - fSecond) + nSecond * fSecond);
    };
    return QColor(
        mix(first.red(), second.red()), mix(first.green(), second.green()), mix(first.blue(), second.blue()))
        .name();
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

// The shades in between are mixed from the colors of window and text, so that they fit every theme.
QJsonObject colours(const QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    const QColor highlight = palette.color(QPalette::Highlight);
    return {
        {QStringLiteral("window"), window.name()},
        {QStringLiteral("text"), text.name()},
        {QStringLiteral("muted"), mixed(text, window, 0.3)},
        {QStringLiteral("line"), mixed(window, text, 0.16)},
        {QStringLiteral("surface"), mixed(window, text, isDark(palette) ? 0.06 : 0.035)},
        {QStringLiteral("hover"), mixed(window, text, 0.12)},
        {QStringLiteral("highlight"), highlight.name()},
        {QStringLiteral("highlight-text"), palette.color(QPalette::HighlightedText).name()},
    };
}

QJsonObject commands()
{
    QJsonObject result;
    for (const auto &[strName, strId] : {std::pair {QStringLiteral("newProject"), MainWindow::tr("File.New")},
             {QStringLiteral("openProject"), QStringLiteral("File.Open_Project")}}) {
        const ContextAction *pCommand = ActionManager::getAction(strId);
        const QString strKeys =
            pCommand ? pCommand->getKeySequence().toString(QKeySequence::NativeText) : QString();
        result.insert(
            strName, QJsonObject {{QStringLiteral("id"), strId}, {QStringLiteral("keys"), strKeys}});
    }
    return result;
}

// The server accepts the page by its origin "qrc:". The key is for engines that may send another origin.
QString server()
{
    QUrl url = ICore::getMainWindow()->getServer()->serverUrl();
    url.setPath(QStringLiteral("/"));
    url.setQuery(QStringLiteral("key=") + ICore::getMainWindow()->getServerKey());
    return url.toString(QUrl::FullyEncoded);
}

} // namespace

QUrl WelcomePage::url()
{
    return QUrl(QStringLiteral("qrc:///welcome/index.html"));
}

QString WelcomePage::title()
{
    return tr("Home");
}

QJsonObject WelcomePage::data(const QWidget &widget)
{
    const QFontInfo font(widget.font());
    return {
        {QStringLiteral("server"), server()},
        {QStringLiteral("texts"), texts()},
        {QStringLiteral("direction"), widget.isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr")},
        // The engine needs it for what it draws itself, such as scroll bars.
        {QStringLiteral("scheme"),
            isDark(widget.palette()) ? QStringLiteral("dark") : QStringLiteral("light")},
        {QStringLiteral("colours"), colours(widget.palette())},
        {QStringLiteral("font"), font.family()},
        {QStringLiteral("commands"), commands()},
        {QStringLiteral("examples"), examples()},
    };
}

QJsonObject WelcomePage::texts()
{
    QJsonObject result;
    for (const Text &text : s_texts)
        result.insert(QLatin1String(text.pName), tr(text.pText));
    result.insert(QStringLiteral("title"), title());
    return result;
}

QJsonArray WelcomePage::examples()
{
    QJsonArray result;
    for (const Example &example : s_examples) {
        const QString strName = QLatin1String(example.pName);
        const QString strFile = QStringLiteral("examples/%1.kelpa").arg(strName);
        if (!QFileInfo::exists(ICore::resourcePath() + QLatin1Char('/') + strFile))
            continue;
        result.append(QJsonObject {{QStringLiteral("file"), strFile},
            {QStringLiteral("picture"), strName + QStringLiteral(".svg")},
            {QStringLiteral("title"), tr(example.pTitle)},
            {QStringLiteral("description"), tr(example.pDescription)}});
    }
    return result;
}
