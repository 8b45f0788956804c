// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QObject>
#include <QSettings>
#include <QString>

class MainWindow;
class QWidget;

/// The way to the main window, the settings stores and the program's folder, and the place where a save of
/// all settings is announced. The main window makes it and deletes it after the document and editor
/// managers, before its own widgets: their destructors already find no main window here. GUI thread only.
class CORE_EXPORT ICore : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ICore)

public:
    /// Null before the main window is built and after it is gone; so are getMainWindow() and getMainWidget().
    [[nodiscard]] static ICore *getInstance();
    [[nodiscard]] static MainWindow *getMainWindow();

    /// The main window for those who need no more of it than any widget has.
    [[nodiscard]] static QWidget *getMainWidget();

    /// UserScope gives the user's store, anything else the machine-wide one. The framework owns both.
    [[nodiscard]] static QSettings *settings(QSettings::Scope scope);

    /// Folder of the executable: forward slashes, none at the end. Callers append their own sub-paths.
    [[nodiscard]] static QString resourcePath();

signals:
    /// Write your settings now; both stores are flushed next.
    void aboutToSaveSettings();

public slots:
    /// Emits aboutToSaveSettings(), then flushes the user's store and the machine-wide one. Only while the
    /// main window lives.
    static void saveSettings();

private:
    friend class MainWindow;
    explicit ICore(MainWindow *pMainWindow);
    ~ICore() override;
};
