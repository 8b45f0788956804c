// SPDX-License-Identifier: MIT
// What an author may expect of projects, as plain values.
#pragma once

#include <QFileInfo>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <algorithm>

struct ModelDocument
{
    /// The state after one command; steps of the same element by the keyboard become one command.
    struct State
    {
        int nElements;
        int nStepped = 0;
        int nElement = 0; ///< that was stepped
    };

    QString path;
    bool bTemp = false;
    bool bBackup = false;
    QList<State> history; ///< the first one is that before any command
    int nIndex = 0;
    int nClean = 0; ///< the state that is on disk; -1: none that can be reached
    bool bSaveDone = false; ///< saved, and neither changed nor left since
    bool bBackedUp = false; ///< a backup lies on the disk
    bool bBackupDue = true; ///< changed since

    [[nodiscard]] bool isModified() const { return bTemp || nIndex != nClean; }
    [[nodiscard]] bool canSave() const { return !bSaveDone && (isModified() || bBackup); }
    [[nodiscard]] int elements() const { return history.at(nIndex).nElements; }
    [[nodiscard]] QString name() const { return QFileInfo(path).completeBaseName(); }

    void dropRedo()
    {
        history.resize(nIndex + 1, State {0});
        if (nClean > nIndex)
            nClean = -1;
    }
    void push(const State &state)
    {
        dropRedo();
        history.append(state);
        goTo(nIndex + 1);
    }
    void step(int nElement, int nDistance)
    {
        dropRedo();
        const int nBefore = history.last().nElement == nElement ? history.last().nStepped : 0;
        if (nBefore == 0 || nIndex == nClean) {
            push({elements(), nDistance, nElement});
        } else if (nBefore + nDistance == 0) { // back where it was: the command goes
            history.removeLast();
            goTo(nIndex - 1);
        } else {
            history.last().nStepped += nDistance;
            bBackupDue = true;
        }
    }
    void goTo(int nState)
    {
        nIndex = nState;
        bSaveDone = false;
        bBackupDue = true;
    }
};

struct Model
{
    QList<ModelDocument> documents; ///< in the order of their tabs
    int nActive = -1;
    QStringList recent;
    QMap<QString, int> disk; ///< elements by path; -1: not a project

    [[nodiscard]] ModelDocument *active() { return nActive < 0 ? nullptr : &documents[nActive]; }

    [[nodiscard]] QString title()
    {
        if (!active())
            return "Kelpa Studio";
        return active()->path + " - Kelpa Studio" + QLatin1String(active()->isModified() ? "*" : "");
    }
    [[nodiscard]] bool isOpenElsewhere(const QString &strPath, const ModelDocument &except) const
    {
        return std::any_of(documents.begin(), documents.end(),
            [&](const ModelDocument &document) { return &document != &except && document.path == strPath; });
    }
    void activate(int nDocument)
    {
        if (nDocument != nActive && active())
            active()->bSaveDone = false;
        nActive = nDocument;
    }
    void attach(const ModelDocument &document)
    {
        documents.append(document);
        activate(static_cast<int>(documents.size()) - 1);
    }
    /// The next one takes its place, or the one before when it was the last.
    void close(int nDocument)
    {
        documents.removeAt(nDocument);
        if (nActive > nDocument || nActive == static_cast<int>(documents.size()))
            --nActive;
    }
    void addRecent(const QString &strPath)
    {
        recent.removeAll(strPath);
        recent.prepend(strPath);
        recent = recent.mid(0, 10);
    }
    void saved(ModelDocument &document)
    {
        document.nClean = document.nIndex;
        document.bTemp = false;
        document.bBackedUp = false;
        disk[document.path] = document.elements();
    }
    void remove(const QString &strPath)
    {
        for (ModelDocument &document : documents) {
            if (disk.contains(strPath) && document.path == strPath) {
                document.nClean = -1;
                document.bSaveDone = false;
            }
        }
        disk.remove(strPath);
    }
    void savedAs(ModelDocument &document, const QString &strPath)
    {
        if (document.bTemp)
            recent.removeOne(document.path);
        document.path = strPath;
        addRecent(strPath);
        saved(document);
    }
    /// -1: no document shows the file that is there.
    [[nodiscard]] int showing(const QString &strPath) const
    {
        for (int i = 0; disk.contains(strPath) && i < static_cast<int>(documents.size()); ++i) {
            if (documents.at(i).path == strPath)
                return i;
        }
        return -1;
    }
};
