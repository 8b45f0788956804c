// SPDX-License-Identifier: MIT
#pragma once

#include <document/ieditor.h>

#include <QPointer>

class QComboBox;
class QMdiSubWindow;
class StageDocument;
class StageView;

/// Shows a project in a sub-window of the main window's area of documents. It creates the sub-window when it
/// is first activated and deletes it in its destructor; the area may delete it earlier. GUI thread only.
class StageEditor : public IEditor
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageEditor)

public:
    StageEditor();
    ~StageEditor() override;

    /// Both are null before the first activation, and once the area of documents has been deleted.
    [[nodiscard]] StageView *getView() const;
    [[nodiscard]] QMdiSubWindow *getSubWindow() const;

signals:
    void selectionChanged();

private:
    void show();
    void createSubWindow(StageDocument *pDocument);
    QWidget *createContent(StageDocument *pDocument);
    void fillScenes();
    void updateTitle();
    void onSubWindowActivated(QMdiSubWindow *pSubWindow);
    void showStatus(const QString &strStatus);
    void requestClose();
    [[nodiscard]] StageDocument *document() const;

    QPointer<QMdiSubWindow> m_pSubWindow;
    QPointer<StageView> m_pView;
    QPointer<QComboBox> m_pScenes;
    bool m_bClosing = false;
};
