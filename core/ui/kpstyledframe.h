// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QByteArray>
#include <QEvent>
#include <QWidget>

#include <memory>

/// The native half of a frameless window. On Windows it answers the window's native messages, so that the
/// user can resize, drag and maximize it as a framed one, and it has a shadow. Elsewhere a press on an edge
/// starts the window system's resize, and on Wayland a drag of the title bar its move. It is a base class of
/// the frame, so both live equally long. GUI thread only.
class CORE_EXPORT KPStyledFrameHelper
{
public:
    explicit KPStyledFrameHelper(QWidget *pWidget);

protected:
    /// Not virtual, because no frame is deleted through a pointer to this class.
    ~KPStyledFrameHelper();

    /// Whether the point, in logical client coordinates, lies on a part of the window that drags it.
    [[nodiscard]] virtual bool isStyledFrameTitleBar(int x, int y) const = 0;

    /// Prepares the native window, which on Windows creates it. Does nothing if it is prepared already.
    void setUpNativeWindow();

    /// Must be called when the widget has got another native window or has lost the one it had.
    void nativeWindowChanged();

    /// For QWidget::nativeEvent(): returns true if the message was handled and `pResult` holds the answer.
    bool handleNativeEvent(const QByteArray &eventType, void *pMessage, qintptr *pResult);

private:
    Q_DISABLE_COPY_MOVE(KPStyledFrameHelper)

    struct Private;
    const std::unique_ptr<Private> d;
};

/// A top-level widget without the system's frame; `Base` is QWidget or derived from it. A class that
/// overrides event() or nativeEvent() calls the ones here.
template <typename Base>
class KPStyledFrame : public Base, public KPStyledFrameHelper
{
public:
    explicit KPStyledFrame(QWidget *pParent = nullptr, Qt::WindowFlags flags = {})
        : Base(pParent, flags | Qt::FramelessWindowHint)
        , KPStyledFrameHelper(this)
    {
        setUpNativeWindow();
    }

protected:
    // Qt replaces the native window, for example, when the window flags change.
    bool event(QEvent *pEvent) override
    {
        if (pEvent->type() == QEvent::WinIdChange)
            nativeWindowChanged();
        return Base::event(pEvent);
    }

    bool nativeEvent(const QByteArray &eventType, void *pMessage, qintptr *pResult) override
    {
        return handleNativeEvent(eventType, pMessage, pResult)
            || Base::nativeEvent(eventType, pMessage, pResult);
    }

    [[nodiscard]] bool isStyledFrameTitleBar(int x, int y) const override
    {
        Q_UNUSED(x)
        Q_UNUSED(y)
        return false;
    }
};
