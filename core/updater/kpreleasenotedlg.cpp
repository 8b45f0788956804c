// SPDX-License-Identifier: MIT
#include "updater/kpreleasenotedlg.h"

#include "displayscale.h"
#include "iui.h"
#include "ui/webviewloader.h"
#include "ui_kpreleasenotedlg.h"
#include "updater/updatetexts.h"

#include <QScreen>
#include <QTimer>

namespace {

constexpr int s_nTimeoutMs = 30000;

} // namespace

KPReleaseNoteDlg::KPReleaseNoteDlg(QWidget *pParent)
    : QDialog(pParent)
    , m_pUi(new Ui::KPReleaseNoteUI)
    , m_pDeadline(new QTimer(this))
{
    m_pUi->setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::WindowCloseButtonHint);
    setWindowIcon(IUi::getIcon());
    const int nDPI = DisplayScale::logicalDpi(this);
    const auto scaled = [nDPI, most = screen()->availableSize() * 9 / 10](int nWidth, int nHeight) {
        return QSize(DisplayScale::proportional(nDPI, nWidth), DisplayScale::proportional(nDPI, nHeight))
            .boundedTo(most);
    };
    setMinimumSize(scaled(480, 360));
    resize(scaled(640, 520));
    m_pUi->m_pBtnClose->setFocus(); // a key typed before the dialog appeared does no harm
    connect(m_pUi->m_pBtnUpdate, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_pUi->m_pBtnClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_pUi->m_pBtnSkip, &QPushButton::clicked, this, [this] { done(SkipVersion); });
    connect(m_pUi->m_pBtnLater, &QPushButton::clicked, this, [this] { done(RemindLater); });
    m_pDeadline->setSingleShot(true);
    m_pDeadline->setInterval(s_nTimeoutMs);
    connect(m_pDeadline, &QTimer::timeout, this, [this] { onLoadFinished(false); });
}

KPReleaseNoteDlg::~KPReleaseNoteDlg() = default;

void KPReleaseNoteDlg::setHeading(const QString &strHeading)
{
    m_pUi->m_pHeadingLabel->setText(strHeading);
}

void KPReleaseNoteDlg::setReleaseNotes(const QString &strNotes)
{
    if (!m_pView) {
        m_pView = WebViewLoader::createView(WebAccess::Web, m_pUi->m_pWebViewRL);
        connect(m_pView, &WebView::loadFinished, this, &KPReleaseNoteDlg::onLoadFinished);
    }
    m_bLoading = UpdateTexts::isWebAddress(strNotes);
    if (!m_bLoading)
        return m_pView->setHtml(strNotes);
    m_pUi->m_pBtnUpdate->setEnabled(false);
    m_pDeadline->start();
    m_pView->setZoomFactor(DisplayScale::logicalDpi(this) / 96.0);
    m_pView->load(QUrl(strNotes));
}

// Only the first result counts: the page that is shown in place of a failed one emits loadFinished() as well,
// and so may a page that navigates by itself.
void KPReleaseNoteDlg::onLoadFinished(bool bOk)
{
    if (!m_bLoading)
        return;
    m_pDeadline->stop();
    m_bLoading = false;
    if (bOk)
        m_pUi->m_pBtnUpdate->setEnabled(true);
    else
        m_pView->setHtml(tr("<h2>Failed to load release notes.</h2>"));
}
