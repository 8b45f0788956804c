// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include <appearance/kpappstyle.h>
#include <mainwindow.h>

namespace {

constexpr int s_nThickness = 10;
constexpr int s_nLength = 30;
constexpr int s_nPanel = 5;

// What it computes from is asked of the proxy, which is this.
class Proxy : public KPAppStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *pOption, const QWidget *pWidget) const override
    {
        switch (metric) {
        case PM_SliderControlThickness:
            return s_nThickness;
        case PM_SliderLength:
            return s_nLength;
        case PM_MenuPanelWidth:
            return s_nPanel;
        default:
            return KPAppStyle::pixelMetric(metric, pOption, pWidget);
        }
    }
};

using Metric = QStyle::PixelMetric;
using enum QStyle::PixelMetric;

const QList<int> s_dpis = {72, 96, 120, 143, 144, 192};

} // namespace

class tst_KPAppStyle : public QObject
{
    Q_OBJECT

private slots:
    // At 144 DPI, where the rules give different values, by number of the metric; -1: the platform's.
    void metrics()
    {
        const QList<int> expected = {9, 0, 15, 0, 0, 0, -1, 0, -1, 24, 13, 24, 10, 30, -1, -1, 9, 12, 1, 3,
            -1, -1, 0, -1, 9, -1, 27, 15, 0, 0, 5, 15, 0, 2, 0, 0, 0, 19, 19, 18, 18, 7, 105, 45, 6, 294, 6,
            24, 6, 0, 0, 24, -1, -1, 0, 0, -1, 26, 2, 48, -1, 64, 32, 64, 2, 2, 1, 9, 32, 19, 0, 64, 32, 3, 9,
            13, 13, 13, 13, 9, 9, 0, -1, 24, 24, -1, -1, -5, 30, 150, 45, 32, 24};
        const QProxyStyle platform;
        QWidget window;
        window.setScreen(screenOf(144));
        const QWidget child(&window);
        for (int i = 0; i < expected.size(); ++i) {
            const int nPlatform = platform.pixelMetric(Metric(i), nullptr, &child);
            QCOMPARE(std::pair(i, m_style.pixelMetric(Metric(i), nullptr, &child)),
                std::pair(i, expected[i] == -1 ? nPlatform : expected[i]));
        }
        QCOMPARE(m_style.pixelMetric(PM_CustomBase, nullptr, nullptr),
            platform.pixelMetric(PM_CustomBase, nullptr, nullptr));
    }

    // By the option if there is one, else by the widget.
    void layoutMarginsOfWindowsAreLarger()
    {
        QWidget window;
        QStyleOption option;
        const QList<int> larger = {8, 11, 13, 16, 16, 22};
        for (const Metric metric : {PM_LayoutTopMargin, PM_LayoutRightMargin})
            QCOMPARE(valuesOf(metric, window, nullptr, &window), larger);
        QCOMPARE(valuesOf(PM_LayoutTopMargin, window, &option, &window), QList<int>({6, 9, 11, 13, 13, 18}));
        option.state = QStyle::State_Window;
        QCOMPARE(valuesOf(PM_LayoutBottomMargin, window, &option, new QWidget(&window)), larger);
    }

    void toolBarExtensionIsMeasuredOnTheMainWindow()
    {
        const TestProgram program;
        MainWindow main(nullptr);
        const QWidget other;
        QCOMPARE(
            valuesOf(PM_ToolBarExtensionExtent, main, nullptr, &other), QList<int>({26, 26, 26, 26, 52, 52}));
        QCOMPARE(valuesOf(PM_ToolBarIconSize, main, nullptr, &other), QList<int>(6, 24));
        QCOMPARE(m_style.pixelMetric(PM_ToolBarIconSize, nullptr, nullptr), 48);
    }

    void titleBarHoldsItsText_data()
    {
        const auto row = columns<int, bool, QList<int>>("flags", "dock", "expected");
        row("a window", Qt::Window, false, {13, 18, 22, 26, 27, 36});
        row("a tool window", Qt::Tool, false, {12, 16, 20, 23, 24, 32});
        row("a dock", Qt::Window, true, {9, 13, 16, 19, 19, 26});
    }
    void titleBarHoldsItsText()
    {
        QFETCH(int, flags);
        QFETCH(bool, dock);
        QDockWidget dockWidget;
        QWidget plain;
        QWidget &widget = dock ? dockWidget : plain;
        QStyleOptionTitleBar option;
        option.titleBarFlags = Qt::WindowFlags(flags);
        const auto height = [&](const QWidget *pWidget) {
            return m_style.pixelMetric(PM_TitleBarHeight, &option, pWidget);
        };
        QFont font = widget.font();
        font.setPixelSize(3);
        widget.setFont(font);
        QTEST(valuesOf(PM_TitleBarHeight, widget, &option, &widget), "expected");
        font.setPixelSize(60);
        widget.setFont(font);
        QCOMPARE(height(&widget), QFontMetrics(font).height());
        QApplication::setFont(font);
        const int nByApplication = height(nullptr);
        QApplication::setFont(QFont());
        QCOMPARE(nByApplication, QFontMetrics(font).height());
    }

    void sliders_data()
    {
        const auto row = columns<Qt::Orientation, int, int, int>("orientation", "ticks", "offset", "space");
        const int nPlatform = QProxyStyle().pixelMetric(PM_SliderTickmarkOffset, nullptr, nullptr);
        row("lying, ticks on both sides", Qt::Horizontal, QSlider::TicksBothSides, 5, 70);
        row("lying, ticks above", Qt::Horizontal, QSlider::TicksAbove, 11, 70);
        row("lying, ticks below: the platform decides", Qt::Horizontal, QSlider::TicksBelow, nPlatform, 70);
        row("standing, ticks on both sides", Qt::Vertical, QSlider::TicksBothSides, 45, -9);
        row("standing, ticks above", Qt::Vertical, QSlider::TicksAbove, 90, -9);
    }
    void sliders()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(int, ticks);
        QStyleOptionSlider option;
        option.rect = QRect(0, 0, 100, 21);
        option.orientation = orientation;
        option.tickPosition = QSlider::TickPosition(ticks);
        QTEST(m_style.pixelMetric(PM_SliderTickmarkOffset, &option, nullptr), "offset");
        QTEST(m_style.pixelMetric(PM_SliderSpaceAvailable, &option, nullptr), "space");
        const QProxyStyle platform;
        const QStyleOption none;
        for (const Metric metric : {PM_SliderTickmarkOffset, PM_SliderSpaceAvailable})
            QCOMPARE(
                m_style.pixelMetric(metric, &none, nullptr), platform.pixelMetric(metric, &none, nullptr));
    }

    void checkBox_data()
    {
        const auto row = columns<int, QColor, QColor>("state", "outer", "inner");
        row("enabled", QStyle::State_Enabled, 0x494949, 0x2a2a2a);
        row("under the mouse", QStyle::State_Enabled | QStyle::State_MouseOver, 0xf7941d, 0x303030);
        row("disabled", 0, 0x494949, 0x383838);
        row("disabled under the mouse", QStyle::State_MouseOver, 0x494949, 0x383838);
    }
    void checkBox()
    {
        QFETCH(int, state);
        QFETCH(QColor, outer);
        QFETCH(QColor, inner);
        for (const int nDPI : s_dpis) {
            const int nLine = nDPI / 96;
            const int nSide = 13 * nDPI / 96;
            const QRect box(5, 5 + nLine, nSide, nSide);
            const QImage plain = drawn(nDPI, state | QStyle::State_Off);
            QCOMPARE(areaOf(plain, QColor(Qt::white), true), box);
            QCOMPARE(plain.pixelColor(box.topLeft()), nLine ? outer : inner);
            QCOMPARE(plain.pixelColor(box.bottomRight()), nLine ? outer : inner);
            QCOMPARE(areaOf(plain, inner), box.adjusted(nLine, nLine, -nLine, -nLine));
            const QRect square = areaOf(drawn(nDPI, state | QStyle::State_NoChange), s_text);
            QCOMPARE(square.center(), areaOf(plain, inner).center());
            QVERIFY(square.width() > 2 && square.width() < nSide - 2 * nLine - 1);
            QCOMPARE(square.width(), square.height());
        }
    }

    // Pixels that the mark fills wholly: with a mark beside the grid there would be none.
    void checkMarkIsCrispAtEveryScale()
    {
        for (const int nDPI : s_dpis) {
            const QImage image = drawn(nDPI, QStyle::State_Enabled | QStyle::State_On);
            const QRect mark = areaOf(image, s_text);
            const QRect inner = areaOf(drawn(nDPI, QStyle::State_Enabled), QColor(0x2a2a2a));
            QVERIFY2(mark.width() > inner.width() / 3, qPrintable(QString::number(nDPI)));
            const QRect ink = areaOf(image, QColor(Qt::white), true);
            QCOMPARE(ink, areaOf(drawn(nDPI, QStyle::State_Enabled), QColor(Qt::white), true));
            QVERIFY(inner.adjusted(1, 1, -1, -1).contains(mark));
            QVERIFY(qAbs(mark.center().x() - inner.center().x()) <= 1);
            QVERIFY(qAbs(mark.center().y() - inner.center().y()) <= 1);
        }
    }

private:
    // While `moved` goes from screen to screen.
    [[nodiscard]] QList<int> valuesOf(
        Metric metric, QWidget &moved, const QStyleOption *pOption, const QWidget *pWidget) const
    {
        QList<int> values;
        for (const int nDPI : s_dpis) {
            moved.setScreen(screenOf(nDPI));
            values.append(m_style.pixelMetric(metric, pOption, pWidget));
        }
        return values;
    }

    const QColor s_text = QColor(0x12, 0xfe, 0x34);

    // On white; null when the painter is not left as it was.
    [[nodiscard]] QImage drawn(int nDPI, int nState) const
    {
        QWidget widget;
        widget.setScreen(screenOf(nDPI));
        QImage image(60, 60, QImage::Format_RGB32);
        image.fill(Qt::white);
        QStyleOption option;
        option.rect = QRect(5, 5, 13 * nDPI / 96, 13 * nDPI / 96);
        option.state = QStyle::State(nState);
        option.palette.setColor(QPalette::Text, s_text);
        QPainter painter(&image);
        const QPen pen(Qt::red, 7);
        painter.setPen(pen);
        m_style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter, &widget);
        const bool bAsBefore = painter.pen() == pen && !painter.testRenderHint(QPainter::Antialiasing);
        return bAsBefore ? image : QImage();
    }

    // The rectangle around all pixels of a colour, or of all others.
    static QRect areaOf(const QImage &image, const QColor &colour, bool bOthers = false)
    {
        const auto mode = bOthers ? Qt::MaskInColor : Qt::MaskOutColor; // of what becomes transparent
        return QRegion(QPixmap::fromImage(image).createMaskFromColor(colour, mode)).boundingRect();
    }

    const Proxy m_style;
};

QTEST_MAIN(tst_KPAppStyle)
#include "tst_kpappstyle.moc"
