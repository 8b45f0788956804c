// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QKeySequence>
#include <QList>
#include <QString>

#include <optional>

/// What a page of shortcuts shows of one command.
struct CORE_EXPORT ShortcutInfo
{
    QString id;
    /// The way through the menus, without mnemonics.
    QString fullText;
    QString description;
    QKeySequence current;
    QKeySequence builtIn;
    /// The store has a key for the command that reads as a shortcut.
    bool bStored = false;

    /// The user's choice, not the built-in one.
    [[nodiscard]] bool isUsers() const { return current != builtIn; }

    /// A cleared shortcut is not stored, so the built-in one is back after the next start. Say so.
    [[nodiscard]] bool returnsAtNextStart() const { return current.isEmpty() && !builtIn.isEmpty(); }
};

/// The shortcuts of all commands that ActionManager has, for a page of preferences. GUI thread only. What
/// these change is in force at once; where nothing else is said, ActionManager::saveSettings() stores it.
namespace Shortcuts {

/// Where the store keeps the shortcut of a command.
[[nodiscard]] CORE_EXPORT QString keyOf(const QString &strId);

/// Nothing for a text that is no key sequence, an empty sequence for an empty one.
[[nodiscard]] CORE_EXPORT std::optional<QKeySequence> parse(
    const QString &strText, QKeySequence::SequenceFormat format);

/// In ascending order of the ids, without separators.
[[nodiscard]] CORE_EXPORT QList<ShortcutInfo> list();

/// Those that have every word of the text, without regard to case, in the id, the full text, the description
/// or the shortcut as the user sees it. All of them for an empty text.
[[nodiscard]] CORE_EXPORT QList<ShortcutInfo> search(const QString &strText);

/// The commands other than `strId` that `keys` would get in the way of: the same sequence, or one that begins
/// with the other. None for an empty sequence.
[[nodiscard]] CORE_EXPORT QList<ShortcutInfo> conflictsOf(const QString &strId, const QKeySequence &keys);

/// All commands whose shortcut conflicts with that of another.
[[nodiscard]] CORE_EXPORT QList<ShortcutInfo> conflicts();

/// False for an unknown id.
CORE_EXPORT bool reset(const QString &strId);
CORE_EXPORT void resetAll();

/// Writes the shortcuts of all commands, and the stored ones of commands whose plug-in is absent, to a file
/// (JSON). False: the file is as it was, and `strError` says why, naming the file.
CORE_EXPORT bool exportTo(const QString &strFileName, QString &strError);

/// Takes the shortcuts from such a file and stores them. Commands that the file does not name keep theirs;
/// what it says of absent commands is stored for the day they come. False: nothing has changed, and
/// `strError` says why, naming the file.
CORE_EXPORT bool importFrom(const QString &strFileName, QString &strError);

} // namespace Shortcuts
