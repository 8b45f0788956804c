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

    /// The text from which the user chooses, such as "Deutsch (Germany)".
    [[nodiscard]] QString title() const { return QStringLiteral("%1 (%2)").arg(nativeLanguage, country); }
};

/// The languages whose catalogs are installed, and the user's choice among them. It lives until the process
/// ends and owns its entries. A saved choice takes effect at the next start. GUI thread only, except
/// getInstance().
class CORE_EXPORT ILanguageManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ILanguageManager)

public:
    [[nodiscard]] static ILanguageManager &getInstance();

    /// Reads the choice from the user's settings, and lists English, which is built in, and a language for
    /// every catalog "translations/app_<id>.qm" beside the program. Call it once: a second call lists all of
    /// them again. Always returns true.
    bool initialize();

    /// English first, then one entry for each catalog in order of the file names. Nothing is left out, not
    /// even a second entry for the same language.
    [[nodiscard]] const QList<LanguageInfo *> &getLanguages() const { return m_languages; }

    /// Of the running program: the id, such as de_DE; its part before the first "_"; the same for file names.
    [[nodiscard]] QString getCurrentLangId() const;
    [[nodiscard]] QString getCurrentLangCode() const;
    [[nodiscard]] QString getCurrentLangNoCountry() const;

    /// As stored; empty when no choice was ever saved.
    [[nodiscard]] QString getSaveLangId() const;

    /// Stores the id of a listed language, compared case-sensitively. Returns false for any other id, which
    /// is not stored, and when the store cannot be written.
    bool saveLanguage(const QString &strId);

    /// Replaces the store, which is not owned. With null nothing is read or saved.
    void setSettings(QSettings *pSettings) { m_pSettings = pSettings; }

private:
    ILanguageManager() = default;
    ~ILanguageManager() override;

    QList<LanguageInfo *> m_languages;
    QLocale m_locale;
    QSettings *m_pSettings = nullptr;
};
