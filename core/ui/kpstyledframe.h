// SPDX-License-Identifier: MIT
#pragma once

#include <core_global.h>

#include <QByteArray>
#include <QEvent>
#include <QWidget>

#include <memory>

/// The native half of a frameless window. On Windows it answers the window's native messages, so that the
/// window is resized, dragged, maximised and given a shadow like a framed one; elsewhere the edges start the
/// window system's resize, and on Wayland the title bar its move. The frame owns it as a second base, so both
/// live equally long. GUI thread only.
class CORE_EXPORT KPStyledFrameHelper
{
public:
    explicit KPStyledFrameHelper(QWidget *pWidget);

protected:
    /// Not virtual: nobody deletes a frame as its helper.
    ~KPStyledFrameHelper();

    /// Whether the point, in logical client coordinates, lies on a part of the window that drags it.
    [[nodiscard]] virtual bool isStyledFrameTitleBar(int x, int y) const = 0;

    /// Prepares the native window; on Windows this makes it. Does nothing when it is prepared already.
    void setUpNativeWindow();

    /// To be called when the widget has got another native window or lost the one it had.
    void nativeWindowChanged();

    /// True: the message was handled and `pResult` holds the answer.
    bool handleNativeEvent(const QByteArray &eventType, void *pMessage, qintptr *pResult);

private:
    Q_DISABLE_COPY_MOVE(KPStyledFrameHelper)

    struct Private;
    const std::unique_ptr<Private> d;
};

/// A top-level widget without the system's frame. A derived class that overrides event() or nativeEvent()
/// calls these.
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
    // Setting the window flags, for one, replaces the native window.
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
