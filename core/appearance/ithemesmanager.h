// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QList>
#include <QObject>
#include <QString>

class QSettings;

/// One theme. Both hold the same text, such as "Dark".
struct ThemesInfo
{
    QString id;
    QString name;
};

/// The themes whose style sheets are installed, the user's choice among them, and the one in force. It lives
/// as long as the process and owns its entries. A saved choice takes effect at the next start. Who owns the
/// program's look calls initialize() and processDPIChange(); nothing in the core does. GUI thread only,
/// except getInstance().
class CORE_EXPORT IThemesManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IThemesManager)

public:
    [[nodiscard]] static IThemesManager &getInstance();

    /// Lists the sheets "resources/styles/app_*.qss" beside the program, gives the application the saved one,
    /// at first "Dark", and then a KPAppStyle. False when no sheet could be applied: "Dark" is the theme of
    /// the next start then, if it is there. Called once: a second call lists all themes again.
    bool initialize();

    /// In order of the file names.
    [[nodiscard]] const QList<ThemesInfo *> &getThemes() const { return m_themes; }

    /// Of the theme in force; empty when none is.
    [[nodiscard]] QString getCurrentThemeId() const { return m_current.id; }
    [[nodiscard]] QString getCurrentThemeName() const { return m_current.name; }

    /// As stored, "Dark" when nothing is.
    [[nodiscard]] QString getSaveThemeId() const;

    /// Stores the id of a listed theme, spelled exactly so; false and nothing stored for any other, and when
    /// the store cannot be written.
    bool saveThemes(const QString &strId);

    /// Gives the application the sheet of "Dark" again, with the sizes for the main window's screen. While
    /// another theme is in force it leaves the application without a sheet: programs call it for "Dark" only.
    void processDPIChange();

    /// Replaces the store; not owned.
    void setSettings(QSettings *pSettings) { m_pSettings = pSettings; }

private:
    IThemesManager() = default;
    ~IThemesManager() override;

    bool applyAsItStands(const QString &strFile);
    bool applyDark();
    [[nodiscard]] QString processStyleSheet(const QString &strSheet) const;

    ThemesInfo m_current;
    QList<ThemesInfo *> m_themes;
    QSettings *m_pSettings = nullptr;
    QString m_strRawSheet; ///< of "Dark" only
};
