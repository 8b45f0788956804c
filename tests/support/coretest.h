// SPDX-License-Identifier: MIT
// What tests of the core share: a program without plug-ins, documents that do as they are told, and answers
// to message boxes.
#pragma once

#include <document/documentmanager.h>
#include <document/editormanager.h>
#include <document/idocument.h>
#include <document/idocumentfactory.h>
#include <document/ieditor.h>
#include <extensionsystem/pluginmanager.h>
#include <support/rows.h>
#include <ui/icreatedocumentdlg.h>
#include <ui/webviewloader.h>

#include <QtTest>
#include <QtWidgets>

/// The framework without a plug-in: both stores lie in a folder that goes with it.
class TestProgram
{
public:
    TestProgram()
    {
        manager.setSettings(std::make_unique<QSettings>(filePath("user.ini"), QSettings::IniFormat));
        manager.setGlobalSettings(std::make_unique<QSettings>(filePath("machine.ini"), QSettings::IniFormat));
    }

    [[nodiscard]] QString filePath(const char *pName) const { return folder.filePath(QLatin1String(pName)); }

    QString write(const char *pName, const QByteArray &content = "x") const
    {
        QFile file(filePath(pName));
        const bool bWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
        return bWritten ? file.fileName() : QString();
    }

    QTemporaryDir folder;
    ExtensionSystem::PluginManager manager;
};

/// To be called first in tests of what shows web pages in a program without the browser engine, which it says
/// once.
inline void expectNoEngine()
{
    QWidget parent;
    expectWarning("Web pages cannot be shown: ");
    WebViewLoader::createView(WebAccess::Web, &parent);
}

inline QByteArray contentOf(const QString &strFileName)
{
    QFile file(strFileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

/// The first screen of that resolution; null without one.
inline QScreen *screenOf(int nDPI)
{
    const auto screens = QGuiApplication::screens();
    const auto it = std::find_if(screens.begin(), screens.end(),
        [&](const QScreen *pScreen) { return qRound(pScreen->logicalDotsPerInchX()) == nDPI; });
    return it == screens.end() ? nullptr : *it;
}

/// Presses keys on the keyboard of the X server, which has its own names for modifiers and letters.
inline void pressOnServer(QString strKeys)
{
    for (const char *pName : {"Ctrl", "Shift", "Alt"})
        strKeys.replace(QLatin1String(pName), QString::fromLatin1(pName).toLower());
    if (strKeys.size() == 1 || strKeys.at(strKeys.size() - 2) == QLatin1Char('+'))
        strKeys = strKeys.toLower();
    strKeys.replace("Backspace", "BackSpace");
    QCOMPARE(QProcess::execute("xdotool", {"key", strKeys}), 0);
}

/// The classes of what takes the keyboard in a window and has no name for screen readers.
inline QStringList unnamedControls(const QWidget *pWindow)
{
    QStringList found;
    for (const QWidget *pWidget : pWindow->findChildren<QWidget *>()) {
        const auto *pButton = qobject_cast<const QAbstractButton *>(pWidget);
        const bool bNamed = !pWidget->accessibleName().isEmpty() || (pButton && !pButton->text().isEmpty());
        if (!bNamed && pWidget->isVisible() && (pWidget->focusPolicy() & Qt::TabFocus)
            && !pWidget->objectName().startsWith("qt_"))
            found.append(pWidget->metaObject()->className());
    }
    return found;
}

/// Clicks one button in each message box that comes up while it lives, in order, and keeps what they said.
/// NoButton closes the box as the window system would.
class BoxAnswers
{
public:
    explicit BoxAnswers(QList<QMessageBox::StandardButton> answers)
        : m_answers(std::move(answers))
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { answer(); });
        m_timer.start(1);
    }

    struct Box
    {
        QString title;
        QString text;
        QString informative;
        QMessageBox::StandardButtons buttons;
        QMessageBox::StandardButton defaultButton;
        QSize iconSize;
        QWidget *pParent;
        QString parentTitle;
        QString details;
    };
    QList<Box> boxes;

    [[nodiscard]] QStringList texts() const
    {
        QStringList result;
        for (const Box &box : boxes)
            result.append(box.text);
        return result;
    }

private:
    void answer()
    {
        auto *pBox = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!pBox || pBox == m_pAnswered || !pBox->isVisible())
            return;
        m_pAnswered = pBox;
        boxes.append({pBox->windowTitle(), pBox->text(), pBox->informativeText(), pBox->standardButtons(),
            pBox->standardButton(pBox->defaultButton()), pBox->iconPixmap().size(), pBox->parentWidget(),
            pBox->parentWidget() ? pBox->parentWidget()->windowTitle() : QString(), pBox->detailedText()});
        const auto button = m_answers.isEmpty() ? QMessageBox::NoButton : m_answers.takeFirst();
        if (QAbstractButton *pButton = pBox->button(button))
            pButton->click();
        else
            pBox->done(-1);
    }

    QTimer m_timer;
    QPointer<QMessageBox> m_pAnswered;
    QList<QMessageBox::StandardButton> m_answers;
};

/// Succeeds or fails as told and keeps a log of the calls.
class FakeDocument : public IDocument
{
    Q_OBJECT

public:
    FakeDocument()
    {
        setUndoStack(&stack);
        connect(this, &IDocument::aboutToClose, this, [this] { log("aboutToClose"); });
    }
    ~FakeDocument() override
    {
        if (pDeleted)
            pDeleted->append(getFileName());
    }

    bool createContent(int nFirst, int nSecond, int nThird, bool bFlag) override
    {
        log(QString("content %1 %2 %3 %4").arg(nFirst).arg(nSecond).arg(nThird).arg(bFlag));
        return true;
    }
    bool open() override { return bOpenSucceeds && IDocument::open(); }
    using IDocument::save;
    bool save() override
    {
        log("save");
        if (bSaveSucceeds)
            stack.setClean();
        return bSaveSucceeds;
    }
    bool saveAs() override
    {
        log("saveAs");
        if (!bSaveSucceeds)
            return false;
        setFileName(strSaveAsName);
        setIsTempDocument(false);
        stack.setClean();
        return true;
    }
    bool close() override
    {
        log("close");
        return closeAnswer ? *closeAnswer : IDocument::close();
    }
    void cleanTempDir() override { log("cleanTempDir"); }
    bool saveBackup() override
    {
        log("saveBackup");
        if (onBackup)
            onBackup();
        return true;
    }

    void log(const QString &strCall)
    {
        calls.append(strCall);
        if (pCalls)
            pCalls->append(strCall);
    }
    void modify() { stack.push(new QUndoCommand); }

    QUndoStack stack;
    QStringList calls;
    QStringList *pCalls = nullptr; ///< gets a copy that outlives the document
    std::optional<bool> closeAnswer;
    std::function<void()> onBackup;
    QString strSaveAsName;
    QStringList *pDeleted = nullptr;
    bool bOpenSucceeds = true;
    bool bSaveSucceeds = true;
};

class FakeNewDialog : public ICreateDocumentDlg
{
    Q_OBJECT

public:
    FakeNewDialog(const QString &strPath, int nResult, int nFirst = 1)
        : ICreateDocumentDlg(nullptr)
        , m_strPath(strPath)
        , m_nResult(nResult)
        , m_nFirst(nFirst)
    {
    }
    int exec() override { return m_nResult; }
    QString getFilePath() override { return m_strPath; }
    int getFirstValue() override { return m_nFirst; }
    int getSecondValue() override { return 2; }
    int getThirdValue() override { return 3; }
    bool getFlag() override { return true; }

private:
    const QString m_strPath;
    const int m_nResult;
    const int m_nFirst;
};

/// In the pool while it lives.
class FakeFactory : public IDocumentFactory
{
    Q_OBJECT

public:
    explicit FakeFactory(const QStringList &suffixes = {"kelpa"})
        : IDocumentFactory(nullptr)
        , m_suffixes(suffixes)
    {
        ExtensionSystem::PluginManager::addObject(this);
    }
    ~FakeFactory() override
    {
        ExtensionSystem::PluginManager::removeObject(this);
        for (const auto &pDocument : std::as_const(documents))
            delete pDocument;
        for (const auto &pEditor : std::as_const(editors))
            delete pEditor;
    }

    IDocument *createDocument() override
    {
        if (missing == "document")
            return nullptr;
        auto *pDocument = new FakeDocument;
        documents.append(pDocument);
        pDocument->pDeleted = &deleted;
        if (prepare)
            prepare(pDocument);
        return pDocument;
    }
    IEditor *createEditor() override
    {
        if (missing == "editor")
            return nullptr;
        auto *pEditor = new IEditor;
        editors.append(pEditor);
        if (onEditor)
            onEditor(pEditor);
        return pEditor;
    }
    QStringList getSupportedSuffixes() override { return m_suffixes; }
    IOptionsDlg *createOptionsDialog() override { return nullptr; }
    ICreateDocumentDlg *createNewDocumentDialog() override
    {
        pDialog = missing == "dialog" ? nullptr : new FakeNewDialog(strNewPath, nDialogResult);
        return pDialog;
    }
    QString getOpenFileName() override { return {}; }

    QList<QPointer<FakeDocument>> documents;
    QList<QPointer<IEditor>> editors;
    QStringList deleted;
    std::function<void(FakeDocument *)> prepare;
    std::function<void(IEditor *)> onEditor;
    QPointer<ICreateDocumentDlg> pDialog;
    QString missing; ///< what it returns null for: "document", "editor" or "dialog"
    QString strNewPath;
    int nDialogResult = QDialog::Accepted;

private:
    const QStringList m_suffixes;
};
