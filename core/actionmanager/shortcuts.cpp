// SPDX-License-Identifier: MIT
#include "actionmanager/shortcuts.h"

#include "actionmanager/actionmanager.h"
#include "actionmanager/contextaction.h"
#include "filewriter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSettings>

#include <algorithm>
#include <optional>

namespace {

using Texts = QMap<QString, QString>;

constexpr qint64 s_nMaxFileSize = 16 * 1024 * 1024;
const QString s_group = QStringLiteral("Shortcuts");
const QString s_format = QStringLiteral("kelpa-shortcuts");

QString translated(const char *pText)
{
    return QCoreApplication::translate("Shortcuts", pText);
}

QString message(const QString &strFileName, const QString &strReason)
{
    return QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(strFileName), strReason);
}

bool collide(const QKeySequence &a, const QKeySequence &b)
{
    return !a.isEmpty() && !b.isEmpty()
        && (a.matches(b) != QKeySequence::NoMatch || b.matches(a) != QKeySequence::NoMatch);
}

ShortcutInfo infoOf(const ContextAction *pCommand)
{
    ShortcutInfo info;
    info.id = pCommand->getId();
    info.fullText = ActionManager::getActionFullText(pCommand);
    info.description = pCommand->getDescription();
    info.current = pCommand->getKeySequence();
    info.builtIn = pCommand->getDefaultKeySequence();
    if (const QSettings *pSettings = ActionManager::getSettings()) {
        const QString strStored = pSettings->value(Shortcuts::keyOf(info.id)).toString();
        const auto keys = Shortcuts::parse(strStored, QKeySequence::NativeText);
        info.bStored = keys && !keys->isEmpty();
    }
    return info;
}

// All shortcuts in the store, also those of commands that are absent.
Texts storedTexts()
{
    Texts texts;
    QSettings *pSettings = ActionManager::getSettings();
    if (!pSettings)
        return texts;
    pSettings->beginGroup(s_group);
    const QStringList keys = pSettings->allKeys();
    for (const QString &strKey : keys)
        texts.insert(strKey, pSettings->value(strKey).toString());
    pSettings->endGroup();
    return texts;
}

std::optional<QJsonObject> shortcutsIn(const QByteArray &json, QString &strReason)
{
    QJsonParseError error;
    const QJsonObject root = QJsonDocument::fromJson(json, &error).object();
    const QJsonValue shortcuts = root.value(s_group);
    if (error.error != QJsonParseError::NoError)
        strReason = error.errorString();
    else if (root.value(QLatin1String("format")) != s_format || !shortcuts.isObject())
        strReason = translated(QT_TRANSLATE_NOOP("Shortcuts", "The file holds no shortcuts."));
    else
        return shortcuts.toObject();
    return {};
}

std::optional<Texts> checked(const QJsonObject &shortcuts, QString &strReason)
{
    Texts texts;
    for (auto it = shortcuts.begin(); it != shortcuts.end(); ++it) {
        const QString strText = it.value().toString();
        const bool bReadable = Shortcuts::parse(strText, QKeySequence::PortableText).has_value();
        if (it.key().isEmpty() || !it.value().isString() || !bReadable) {
            strReason =
                translated(QT_TRANSLATE_NOOP("Shortcuts", "The shortcut of \"%1\" is no key sequence."))
                    .arg(it.key());
            return {};
        }
        texts.insert(it.key(), strText);
    }
    return texts;
}

std::optional<Texts> readFile(const QString &strFileName, QString &strReason)
{
    QFile file(strFileName);
    if (!file.open(QIODevice::ReadOnly)) {
        strReason = file.errorString();
        return {};
    }
    if (file.size() > s_nMaxFileSize) {
        strReason = translated(QT_TRANSLATE_NOOP("Shortcuts", "The file is too large."));
        return {};
    }
    const auto shortcuts = shortcutsIn(file.readAll(), strReason);
    return shortcuts ? checked(*shortcuts, strReason) : std::nullopt;
}

void storeAbsent(const QString &strId, const QString &strText)
{
    QSettings *pSettings = ActionManager::getSettings();
    const QString strKey = Shortcuts::keyOf(strId);
    if (pSettings && strText.isEmpty())
        pSettings->remove(strKey);
    else if (pSettings)
        pSettings->setValue(strKey, strText);
}

} // namespace

QString Shortcuts::keyOf(const QString &strId)
{
    return s_group + QLatin1Char('/') + strId;
}

std::optional<QKeySequence> Shortcuts::parse(const QString &strText, QKeySequence::SequenceFormat format)
{
    const auto keys = QKeySequence::fromString(strText, format);
    for (int i = 0; i < keys.count(); ++i) {
        if (keys[static_cast<uint>(i)].key() == Qt::Key_unknown)
            return {};
    }
    return keys;
}

QList<ShortcutInfo> Shortcuts::list()
{
    QList<ShortcutInfo> infos;
    const auto commands = ActionManager::getActions();
    for (const ContextAction *pCommand : commands) {
        if (!pCommand->isSeparator())
            infos.append(infoOf(pCommand));
    }
    return infos;
}

QList<ShortcutInfo> Shortcuts::search(const QString &strText)
{
    const QStringList words = strText.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QList<ShortcutInfo> infos = list();
    infos.removeIf([&](const ShortcutInfo &info) {
        const QStringList texts {
            info.id, info.fullText, info.description, info.current.toString(QKeySequence::NativeText)};
        const QString strAll = texts.join(QLatin1Char('\n'));
        return !std::all_of(words.begin(), words.end(),
            [&](const QString &strWord) { return strAll.contains(strWord, Qt::CaseInsensitive); });
    });
    return infos;
}

QList<ShortcutInfo> Shortcuts::conflictsOf(const QString &strId, const QKeySequence &keys)
{
    QList<ShortcutInfo> infos = list();
    infos.removeIf(
        [&](const ShortcutInfo &info) { return info.id == strId || !collide(info.current, keys); });
    return infos;
}

QList<ShortcutInfo> Shortcuts::conflicts()
{
    const QList<ShortcutInfo> all = list();
    QList<ShortcutInfo> infos;
    std::copy_if(all.begin(), all.end(), std::back_inserter(infos), [&](const ShortcutInfo &info) {
        return std::any_of(all.begin(), all.end(), [&](const ShortcutInfo &other) {
            return other.id != info.id && collide(other.current, info.current);
        });
    });
    return infos;
}

bool Shortcuts::reset(const QString &strId)
{
    ContextAction *pCommand = ActionManager::getAction(strId);
    if (!pCommand || pCommand->isSeparator())
        return false;
    pCommand->setKeySequence(pCommand->getDefaultKeySequence());
    return true;
}

void Shortcuts::resetAll()
{
    ActionManager::resetToDefault();
}

bool Shortcuts::exportTo(const QString &strFileName, QString &strError)
{
    Texts texts = storedTexts();
    const auto infos = list();
    for (const ShortcutInfo &info : infos)
        texts.insert(info.id, info.current.toString(QKeySequence::PortableText));
    QJsonObject shortcuts;
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        if (Shortcuts::parse(it.value(), QKeySequence::PortableText))
            shortcuts.insert(it.key(), it.value());
    }
    const QJsonObject root {{QStringLiteral("format"), s_format}, {s_group, shortcuts}};
    const QString strReason = FileWriter::write(strFileName, QJsonDocument(root).toJson());
    if (!strReason.isEmpty())
        strError = message(strFileName, strReason);
    return strReason.isEmpty();
}

bool Shortcuts::importFrom(const QString &strFileName, QString &strError)
{
    QString strReason;
    const auto texts = readFile(strFileName, strReason);
    if (!texts) {
        strError = message(strFileName, strReason);
        return false;
    }
    for (auto it = texts->cbegin(); it != texts->cend(); ++it) {
        ContextAction *pCommand = ActionManager::getAction(it.key());
        if (pCommand && !pCommand->isSeparator())
            pCommand->setKeySequence(QKeySequence::fromString(it.value(), QKeySequence::PortableText));
        else if (!pCommand)
            storeAbsent(it.key(), it.value());
    }
    ActionManager::saveSettings();
    return true;
}
