// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QList>
#include <QLocale>
#include <QObject>
#include <QString>

class QSettings;

/// One language of the user interface.
struct LanguageInfo
{
    QString id; ///< name of the locale, such as de_DE
    QString language; ///< English name
    QString country; ///< English name
    QString nativeLanguage; ///< name in that language
    QString nativeCountry; ///< name in that language

    /// What the user chooses from: "Deutsch (Germany)".
    [[nodiscard]] QString title() const { return QStringLiteral("%1 (%2)").arg(nativeLanguage, country); }
};

/// The languages whose catalogues are installed, and the user's choice among them. It lives as long as the
/// process and owns its entries. A saved choice takes effect at the next start. GUI thread only, except
/// getInstance().
class CORE_EXPORT ILanguageManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ILanguageManager)

public:
    [[nodiscard]] static ILanguageManager &getInstance();

    /// Reads the choice from the framework's user settings and lists built-in English and every catalogue
    /// "translations/app_<id>.qm" beside the program. Called once: a second call lists all of them again.
    /// Always true.
    bool initialize();

    /// English first, then one entry per catalogue in order of the file names. Nothing is left out, not even
    /// a second entry of the same language.
    [[nodiscard]] const QList<LanguageInfo *> &getLanguages() const { return m_languages; }

    /// Of the running program: de_DE, the part before the first "_", and the same again for file names.
    [[nodiscard]] QString getCurrentLangId() const;
    [[nodiscard]] QString getCurrentLangCode() const;
    [[nodiscard]] QString getCurrentLangNoCountry() const;

    /// As stored; empty when never saved.
    [[nodiscard]] QString getSaveLangId() const;

    /// Stores the id of a listed language, spelled exactly so; false and nothing stored for any other, and
    /// when the store cannot be written.
    bool saveLanguage(const QString &strId);

    /// Replaces the store; not owned.
    void setSettings(QSettings *pSettings) { m_pSettings = pSettings; }

private:
    ILanguageManager() = default;
    ~ILanguageManager() override;

    QList<LanguageInfo *> m_languages;
    QLocale m_locale;
    QSettings *m_pSettings = nullptr;
};
