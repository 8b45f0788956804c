// SPDX-License-Identifier: MIT
#include "feedback.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QSysInfo>
#include <QUrlQuery>
#include <icore.h>
#include <iui.h>
#include <mainwindow.h>
#include <updater/updatetexts.h>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Feedback)
};

QList<std::pair<QString, QString>> details()
{
    return {{QStringLiteral("version"), QCoreApplication::applicationVersion()},
        {QStringLiteral("qt"), QLatin1String(qVersion())},
        {QStringLiteral("system"),
            QSysInfo::prettyProductName() + QLatin1String(", ") + QSysInfo::currentCpuArchitecture()}};
}

// QUrlQuery does not encode plus signs, and servers read a plus sign as a space.
QString encoded(const QString &strText)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(strText));
}

} // namespace

QUrl Feedback::addressWithDetails(const QString &strAddress)
{
    QUrl url(strAddress);
    const bool bMail = url.scheme() == QLatin1String("mailto");
    const bool bWeb = UpdateTexts::isWebUrl(url);
    if (!bMail && !bWeb)
        return {};
    QUrlQuery query(url);
    QString strBody;
    for (const auto &[strName, strValue] : details()) {
        strBody += strName + QLatin1String(": ") + strValue + QLatin1String("\r\n");
        if (bWeb)
            query.addQueryItem(strName, encoded(strValue));
    }
    if (bMail)
        query.addQueryItem(QStringLiteral("body"), encoded(strBody));
    url.setQuery(query);
    return url;
}

void Feedback::open(const QString &strAddress)
{
    const QUrl url = addressWithDetails(strAddress);
    if (url.isValid() && !url.isEmpty() && QDesktopServices::openUrl(url))
        return;
    IUi::warning(ICore::getMainWindow(), IUi::getTitle(),
        Texts::tr("The address \"%1\" cannot be opened.").arg(strAddress));
}
