// SPDX-License-Identifier: MIT
// The main window and the screen it is on: display scale, task bar, native messages; and the help document.
#include "mainwindow.h"

#include "appearance/ilanguagemanager.h"
#include "displayscale.h"
#include "icore.h"
#include "ui/imainmenuwidget.h"
#include "ui/ioptionsdlg.h"
#include "ui/nativescreen.h"

#include <QApplication>
#include <QDataStream>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include <utility>

namespace {

Q_LOGGING_CATEGORY(lcWindow, "kelpa.core.window")

constexpr int s_dpiCheckMs = 200;
constexpr int s_restoreMs = 300; // longer than a window manager takes to change its mind
constexpr Qt::WindowStates s_notNormal = Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen;

QString helpFile(const QString &strLanguage)
{
    return QDir(ICore::resourcePath())
        .absoluteFilePath(QStringLiteral("%1_help_%2.pdf").arg(QStringLiteral("Kelpa"), strLanguage));
}

void tell(const QString &strText)
{
    QMessageBox box;
    box.setText(strText);
    box.exec();
}

// A task bar that hides itself reserves nothing: a window as large as the screen would keep it hidden.
bool coversUnreservedScreen(const QWidget *pWindow)
{
    const QScreen *pScreen = pWindow->screen();
    return pScreen && pScreen->geometry() == pScreen->availableGeometry()
        && pWindow->frameGeometry() == pScreen->availableGeometry();
}

// But for the line that is left free.
bool fillsScreen(const QWidget *pWindow, const QRect &rect)
{
    const QSize available = pWindow->screen() ? pWindow->screen()->availableSize() : QSize();
    return rect.width() >= available.width() && rect.height() >= available.height() - 1;
}

// A widget keeps the scale of its font until it comes to another screen, even when the scale of its own does
// not stay.
void updateFonts()
{
    const auto all = QApplication::allWidgets();
    const QList<QPointer<QWidget>> widgets(all.cbegin(), all.cend()); // one may go with another's event
    for (const auto &pWidget : widgets) {
        QEvent event(QEvent::ScreenChangeInternal);
        if (pWidget)
            QCoreApplication::sendEvent(pWidget, &event);
    }
}

} // namespace

void MainWindow::onHelpContents()
{
    QString strFile = helpFile(ILanguageManager::getInstance().getCurrentLangNoCountry());
    if (!QFileInfo::exists(strFile))
        strFile = helpFile(QStringLiteral("en"));
    if (!QFileInfo::exists(strFile)) {
        qCInfo(lcWindow, "Help file not found: %s", qUtf8Printable(strFile));
        tell(tr("Help document is missing."));
    } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(strFile))) {
        qCInfo(lcWindow, "Failed to open help file: %s", qUtf8Printable(strFile));
        tell(tr("Could not open help file."));
    }
}

void MainWindow::onPreferences()
{
    if (IOptionsDlg *pDialog = getOptionsDialog())
        pDialog->showDialog();
}

void MainWindow::onTimerDPICheck()
{
    m_dpiCheckTimer.stop();
    const int nDPI = DisplayScale::logicalDpi(ICore::getMainWindow());
    const int nScale = DisplayScale::percent(nDPI);
    if (nScale == m_nDisplayScale)
        return;
    const int nMargin = nDPI / 96;
    setContentsMargins(nMargin, nMargin, nMargin, nMargin);
    m_nDisplayScale = nScale;
    updateFonts();
    emit dpiChanged(nScale);
}

void MainWindow::startDpiCheck()
{
    m_dpiCheckTimer.start(s_dpiCheckMs);
}

// The native window comes with the first show, and may be replaced later.
void MainWindow::watchScreen()
{
    if (!windowHandle())
        return;
    connect(
        windowHandle(), &QWindow::screenChanged, this, &MainWindow::onScreenChanged, Qt::UniqueConnection);
    disconnect(m_screenScale);
    m_screenScale = connect(screen(), &QScreen::logicalDotsPerInchChanged, this, &MainWindow::startDpiCheck);
}

void MainWindow::onScreenChanged()
{
    watchScreen();
    NativeScreen::refreshFrame(this);
    startDpiCheck();
}

bool MainWindow::event(QEvent *pEvent)
{
    if (pEvent->type() == QEvent::WinIdChange || pEvent->type() == QEvent::Show)
        watchScreen();
    return KPStyledFrame<QMainWindow>::event(pEvent);
}

bool MainWindow::nativeEvent(const QByteArray &eventType, void *pMessage, qintptr *pResult)
{
    if (NativeScreen::isScaleChange(eventType, pMessage))
        startDpiCheck();
    return KPStyledFrame<QMainWindow>::nativeEvent(eventType, pMessage, pResult);
}

void MainWindow::moveEvent(QMoveEvent *pEvent)
{
    KPStyledFrame<QMainWindow>::moveEvent(pEvent);
    fixAutoHideTaskbar();
}

void MainWindow::resizeEvent(QResizeEvent *pEvent)
{
    KPStyledFrame<QMainWindow>::resizeEvent(pEvent);
    fixAutoHideTaskbar();
}

void MainWindow::fixAutoHideTaskbar()
{
    if (!coversUnreservedScreen(this))
        return;
    QTimer::singleShot(0, this, [this] {
        if (!coversUnreservedScreen(this))
            return;
        // With the resize both QWidget and the window manager take the new size for the one to go back to.
        if (isMaximized() && !fillsScreen(this, QMainWindow::normalGeometry()))
            m_normalGeometry = QMainWindow::normalGeometry();
        const QSize available = screen()->availableGeometry().size();
        resize(available.width(), available.height() - 1);
        setWindowState(windowState() | Qt::WindowMaximized);
    });
}

QRect MainWindow::normalGeometry() const
{
    return isMaximized() && m_normalGeometry.isValid() ? m_normalGeometry : QMainWindow::normalGeometry();
}

// The layout of these bytes is the same in all versions of Qt 6: two numbers of the format, the frame, and
// the place to go back to.
QByteArray MainWindow::saveGeometry() const
{
    QByteArray geometry = QMainWindow::saveGeometry();
    QDataStream stream(&geometry, QIODevice::ReadWrite);
    stream.setVersion(QDataStream::Qt_4_0);
    stream.device()->seek(2 * sizeof(quint32) + 4 * sizeof(qint32));
    stream << normalGeometry();
    return geometry;
}

// The old state in the event is the system's, which may have told it before: what holds now is told each
// time.
void MainWindow::followMaximized(bool bByProgram)
{
    if (m_pTitleBar)
        m_pTitleBar->updateMaximized(isMaximized());
    if (windowState() & s_notNormal)
        return;
    // A window manager may take the resize for the end of the maximized state, which then comes again.
    if (bByProgram)
        giveNormalGeometryBack();
    else
        QTimer::singleShot(s_restoreMs, this, [this] {
            if (!(windowState() & s_notNormal) && fillsScreen(this, geometry()))
                giveNormalGeometryBack();
        });
}

void MainWindow::giveNormalGeometryBack()
{
    if (const QRect normal = std::exchange(m_normalGeometry, QRect()); normal.isValid())
        setGeometry(normal);
}
