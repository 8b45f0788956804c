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

/// The offer of a newer version, with its release notes. "Update" accepts the dialog; "Close", Escape and the
/// window's close button reject it; the other two buttons end it with a Result. The browser engine is loaded
/// by setReleaseNotes(). The caller owns the dialog. GUI thread only.
class CORE_EXPORT KPReleaseNoteDlg : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KPReleaseNoteDlg)

public:
    /// What exec() returns besides Accepted and Rejected.
    enum Result { SkipVersion = 2, RemindLater = 3 };

    explicit KPReleaseNoteDlg(QWidget *pParent);
    ~KPReleaseNoteDlg() override;

    /// The text is shown as rich text, so the caller must escape names in it.
    void setHeading(const QString &strHeading);

    /// An http or https URL is loaded; "Update" is disabled until the page is there, and stays disabled if it
    /// does not load within 30 seconds. Any other text is shown as HTML.
    void setReleaseNotes(const QString &strNotes);

private:
    void onLoadFinished(bool bOk);

    const std::unique_ptr<Ui::KPReleaseNoteUI> m_pUi;
    WebView *m_pView = nullptr;
    QTimer *m_pDeadline;
    bool m_bLoading = false; ///< a URL is being loaded; its result decides about "Update"
};
