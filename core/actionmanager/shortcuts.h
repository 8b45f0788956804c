// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QKeySequence>
#include <QList>
#include <QString>

#include <optional>

/// What a page of preferences shows of one command.
struct CORE_EXPORT ShortcutInfo
{
    QString id;
    /// The way through the menus, without mnemonics.
    QString fullText;
    QString description;
    QKeySequence current;
    QKeySequence builtIn;
    /// Whether the settings hold a valid shortcut for the command.
    bool bStored = false;

    /// Whether the shortcut differs from the built-in one.
    [[nodiscard]] bool isUsers() const { return current != builtIn; }

    /// An empty shortcut is not stored, so the next start brings the built-in one back. Tell the user.
    [[nodiscard]] bool returnsAtNextStart() const { return current.isEmpty() && !builtIn.isEmpty(); }
};

/// The shortcuts of all commands that ActionManager has, for a page of preferences. Changes are in force at
/// once; unless stated otherwise, ActionManager::saveSettings() stores them. GUI thread only.
namespace Shortcuts {

/// The key of a command's shortcut in the settings.
[[nodiscard]] CORE_EXPORT QString keyOf(const QString &strId);

/// Returns nothing for a text that is no key sequence, and an empty sequence for an empty text.
[[nodiscard]] CORE_EXPORT std::optional<QKeySequence> parse(
    const QString &strText, QKeySequence::SequenceFormat format);

/// In ascending order of the ids, without separators.
[[nodiscard]] CORE_EXPORT QList<ShortcutInfo> list();

/// The commands that have every word of the text, in any case, in the id, the full text, the description or
/// the shortcut as the user sees it. All commands for an empty text.
[[nodiscard]] CORE_EXPORT QList<ShortcutInfo> search(const QString &strText);

/// The commands other than `strId` whose shortcut conflicts with `keys`: both are the same, or one begins
/// with the other. None for an empty sequence.
[[nodiscard]] CORE_EXPORT QList<ShortcutInfo> conflictsOf(const QString &strId, const QKeySequence &keys);

/// All commands whose shortcut conflicts with that of another.
[[nodiscard]] CORE_EXPORT QList<ShortcutInfo> conflicts();

/// Puts the default shortcut in force. Returns false for an unknown id and for a separator.
CORE_EXPORT bool reset(const QString &strId);
CORE_EXPORT void resetAll();

/// Writes the shortcuts of all commands, and the stored ones of commands whose plug-in is absent, to a JSON
/// file. On failure the file stays as it was, and `strError` names it and the reason.
CORE_EXPORT bool exportTo(const QString &strFileName, QString &strError);

/// Reads the shortcuts from such a file and stores them. Commands that it does not name keep theirs; those of
/// absent commands are stored until these come back. On failure nothing changes, and `strError` names the
/// file and the reason.
CORE_EXPORT bool importFrom(const QString &strFileName, QString &strError);

} // namespace Shortcuts
