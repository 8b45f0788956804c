// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QDialog>

#include <memory>

class QTimer;
class WebView;

namespace Ui {
class KPReleaseNoteUI;
}

/// The offer of a newer version, with its release notes. Only "Update" accepts it and only "Close" rejects
/// it; the other two buttons end it with results of their own. The browser engine is loaded when notes are
/// set. Whoever makes it owns it; GUI thread only.
class CORE_EXPORT KPReleaseNoteDlg : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KPReleaseNoteDlg)

public:
    /// What exec() gives beside Accepted and Rejected.
    enum Result { SkipVersion = 2, RemindLater = 3 };

    explicit KPReleaseNoteDlg(QWidget *pParent);
    ~KPReleaseNoteDlg() override;

    /// Rich text.
    void setHeading(const QString &strHeading);

    /// An http or https URL is loaded, and "Update" waits until it is there; it stays disabled when the page
    /// cannot be had, within 30 seconds. Any other text is shown as HTML.
    void setReleaseNotes(const QString &strNotes);

private:
    void onLoadFinished(bool bOk);

    const std::unique_ptr<Ui::KPReleaseNoteUI> m_pUi;
    WebView *m_pView = nullptr;
    QTimer *m_pDeadline;
    bool m_bLoading = false; ///< a URL; its end decides about "Update"
};
