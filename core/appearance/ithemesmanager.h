// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QList>
#include <QObject>
#include <QString>

class QSettings;

/// One theme. Both members hold the same text, such as "Dark".
struct ThemesInfo
{
    QString id;
    QString name;
};

/// The themes whose style sheets are installed, the user's choice among them, and the one in force. It lives
/// until the process ends and owns its entries. A saved choice takes effect at the next start. The plug-in
/// that gives the program its look calls initialize() and processDPIChange(); nothing in the core does. GUI
/// thread only, except getInstance().
class CORE_EXPORT IThemesManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IThemesManager)

public:
    [[nodiscard]] static IThemesManager &getInstance();

    /// Lists the sheets "resources/styles/app_*.qss" beside the program, gives the application that of the
    /// saved theme, at first "Dark", and then a KPAppStyle. Returns false if no sheet could be applied; then
    /// "Dark", if listed, is saved. Call it once: a second call lists all themes again.
    bool initialize();

    /// In order of the file names.
    [[nodiscard]] const QList<ThemesInfo *> &getThemes() const { return m_themes; }

    /// Of the theme in force; empty when none is.
    [[nodiscard]] QString getCurrentThemeId() const { return m_current.id; }
    [[nodiscard]] QString getCurrentThemeName() const { return m_current.name; }

    /// As stored; "Dark" when nothing is.
    [[nodiscard]] QString getSaveThemeId() const;

    /// Stores the id of a listed theme, compared case-sensitively. Returns false for any other id, which is
    /// not stored, and when the store cannot be written.
    bool saveThemes(const QString &strId);

    /// Gives the application the sheet of "Dark" again, with sizes for the main window's screen. Call it only
    /// while "Dark" is in force: else the sheet is taken away, or "Dark" comes if it is saved by now.
    void processDPIChange();

    /// Replaces the store, which is not owned. With null nothing is read or saved.
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
    QString m_strRawSheet; ///< the sheet of "Dark" with its size tokens; empty under other themes
};
