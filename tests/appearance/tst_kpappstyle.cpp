// SPDX-License-Identifier: MIT
#include <support/coretest.h>

#include <appearance/kpappstyle.h>
#include <mainwindow.h>

#include <QDockWidget>
#include <QPainter>
#include <QScreen>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QStyleOptionTitleBar>

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

const QList<int> s_dpis = {72, 96, 120, 143, 144, 192};

void moveTo(QWidget &widget, int nDPI)
{
    const auto screens = QGuiApplication::screens();
    for (QScreen *pScreen : screens) {
        if (pScreen->name() == QString::number(nDPI))
            widget.setScreen(pScreen);
    }
}

} // namespace

class tst_KPAppStyle : public QObject
{
    Q_OBJECT

private slots:
    // Several metrics of one rule; values at 72, 96, 120, 143, 144 and 192 DPI, of a widget in a window.
    void metrics_data()
    {
        const auto row = columns<QList<Metric>, QList<int>>("metrics", "expected");
        row("proportional 6", {QStyle::PM_ButtonMargin, QStyle::PM_LayoutVerticalSpacing},
            {4, 6, 7, 8, 9, 12});
        row("proportional 10", {QStyle::PM_MenuScrollerHeight, QStyle::PM_MenuButtonIndicator},
            {7, 10, 12, 14, 15, 20});
        row("proportional 9",
            {QStyle::PM_ScrollBarSliderMin, QStyle::PM_LayoutLeftMargin, QStyle::PM_LayoutBottomMargin},
            {6, 9, 11, 13, 13, 18});
        row("proportional 16", {QStyle::PM_SliderThickness, QStyle::PM_TitleBarButtonSize},
            {12, 16, 20, 23, 24, 32});
        row("proportional 8", {QStyle::PM_DockWidgetHandleExtent}, {6, 8, 10, 11, 12, 16});
        row("proportional 18", {QStyle::PM_TitleBarHeight}, {13, 18, 22, 26, 27, 36});
        row("proportional 13", {QStyle::PM_IndicatorWidth, QStyle::PM_SizeGripSize}, {9, 13, 16, 19, 19, 26});
        row("proportional 12", {QStyle::PM_ExclusiveIndicatorHeight, QStyle::PM_ExclusiveIndicatorWidth},
            {9, 12, 15, 17, 18, 24});
        row("proportional 5", {QStyle::PM_DialogButtonsSeparator}, {3, 5, 6, 7, 7, 10});
        row("proportional 70", {QStyle::PM_DialogButtonsButtonWidth}, {52, 70, 87, 104, 105, 140});
        row("proportional 30",
            {QStyle::PM_HeaderDefaultSectionSizeVertical, QStyle::PM_DialogButtonsButtonHeight},
            {22, 30, 37, 44, 45, 60});
        row("proportional 4", {QStyle::PM_MdiSubWindowFrameWidth, QStyle::PM_HeaderMargin},
            {3, 4, 5, 5, 6, 8});
        row("proportional 196", {QStyle::PM_MdiSubWindowMinimizedWidth}, {147, 196, 245, 291, 294, 392});
        row("proportional 2", {QStyle::PM_DockWidgetTitleBarButtonMargin}, {1, 2, 2, 2, 3, 4});
        row("proportional 20", {QStyle::PM_TreeViewIndentation}, {15, 20, 25, 29, 30, 40});
        row("proportional 100", {QStyle::PM_HeaderDefaultSectionSizeHorizontal},
            {75, 100, 125, 148, 150, 200});
        row("whole 12", {QStyle::PM_ScrollBarExtent}, {12, 12, 12, 12, 24, 24});
        row("whole 24", {QStyle::PM_ToolBarIconSize}, {24, 24, 24, 24, 48, 48});
        row("whole 32", {QStyle::PM_LargeIconSize, QStyle::PM_MessageBoxIconSize}, {32, 32, 32, 32, 64, 64});
        row("whole 16", {QStyle::PM_SmallIconSize, QStyle::PM_TitleBarButtonIconSize},
            {16, 16, 16, 16, 32, 32});
        row("none", {QStyle::PM_DefaultFrameWidth, QStyle::PM_TabBar_ScrollButtonOverlap},
            {0, 0, 0, 0, 0, 0});
        row("always 1", {QStyle::PM_DockWidgetFrameWidth, QStyle::PM_ToolTipLabelFrameWidth},
            {1, 1, 1, 1, 1, 1});
        row("always 3", {QStyle::PM_TabBarTabOverlap}, {3, 3, 3, 3, 3, 3});
        row("always 9", {QStyle::PM_ProgressBarChunkWidth}, {9, 9, 9, 9, 9, 9});
        row("always 2", {QStyle::PM_MenuBarPanelWidth, QStyle::PM_FocusFrameHMargin}, {2, 2, 2, 2, 2, 2});
        row("less than the menu's panel", {QStyle::PM_SubMenuOverlap}, QList<int>(6, -s_nPanel));
    }
    void metrics()
    {
        QFETCH(QList<Metric>, metrics);
        QWidget window;
        for (const Metric metric : std::as_const(metrics))
            QTEST(valuesOf(metric, window, nullptr, new QWidget(&window)), "expected");
    }

    void othersAreThoseOfThePlatform()
    {
        const QProxyStyle platform;
        for (const Metric metric : {QStyle::PM_MaximumDragDistance, QStyle::PM_SplitterWidth,
                 QStyle::PM_TabBarTabHSpace, QStyle::PM_CustomBase})
            QCOMPARE(m_style.pixelMetric(metric, nullptr, nullptr),
                platform.pixelMetric(metric, nullptr, nullptr));
    }

    // By the option if there is one, else by the widget.
    void layoutMarginsOfWindowsAreLarger()
    {
        QWidget window;
        QStyleOption option;
        const QList<int> larger = {8, 11, 13, 16, 16, 22};
        for (const Metric metric : {QStyle::PM_LayoutTopMargin, QStyle::PM_LayoutRightMargin})
            QCOMPARE(valuesOf(metric, window, nullptr, &window), larger);
        QCOMPARE(valuesOf(QStyle::PM_LayoutTopMargin, window, &option, &window),
            QList<int>({6, 9, 11, 13, 13, 18}));
        option.state = QStyle::State_Window;
        QCOMPARE(valuesOf(QStyle::PM_LayoutBottomMargin, window, &option, new QWidget(&window)), larger);
    }

    void toolBarExtensionIsMeasuredOnTheMainWindow()
    {
        const TestProgram program;
        MainWindow main(nullptr);
        const QWidget other;
        QCOMPARE(valuesOf(QStyle::PM_ToolBarExtensionExtent, main, nullptr, &other),
            QList<int>({26, 26, 26, 26, 52, 52}));
        QCOMPARE(valuesOf(QStyle::PM_ToolBarIconSize, main, nullptr, &other), QList<int>(6, 24));
        QCOMPARE(m_style.pixelMetric(QStyle::PM_ToolBarIconSize, nullptr, nullptr), 48);
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
            return m_style.pixelMetric(QStyle::PM_TitleBarHeight, &option, pWidget);
        };
        QFont font = widget.font();
        font.setPixelSize(3);
        widget.setFont(font);
        QTEST(valuesOf(QStyle::PM_TitleBarHeight, widget, &option, &widget), "expected");
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
        const int nPlatform = QProxyStyle().pixelMetric(QStyle::PM_SliderTickmarkOffset, nullptr, nullptr);
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
        QTEST(m_style.pixelMetric(QStyle::PM_SliderTickmarkOffset, &option, nullptr), "offset");
        QTEST(m_style.pixelMetric(QStyle::PM_SliderSpaceAvailable, &option, nullptr), "space");
        const QProxyStyle platform;
        const QStyleOption none;
        for (const Metric metric : {QStyle::PM_SliderTickmarkOffset, QStyle::PM_SliderSpaceAvailable})
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

    void painterIsLeftAsItWas()
    {
        QImage image(20, 20, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setPen(QPen(Qt::red, 7));
        QStyleOption option;
        option.rect = image.rect();
        option.state = QStyle::State_On | QStyle::State_Enabled;
        m_style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter, nullptr);
        QCOMPARE(painter.pen(), QPen(Qt::red, 7));
        QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
    }

private:
    // While `moved` goes from screen to screen.
    [[nodiscard]] QList<int> valuesOf(
        Metric metric, QWidget &moved, const QStyleOption *pOption, const QWidget *pWidget) const
    {
        QList<int> values;
        for (const int nDPI : s_dpis) {
            moveTo(moved, nDPI);
            values.append(m_style.pixelMetric(metric, pOption, pWidget));
        }
        return values;
    }

    const QColor s_text = QColor(0x12, 0xfe, 0x34);

    // On white.
    [[nodiscard]] QImage drawn(int nDPI, int nState) const
    {
        QWidget widget;
        moveTo(widget, nDPI);
        QImage image(60, 60, QImage::Format_RGB32);
        image.fill(Qt::white);
        QStyleOption option;
        option.rect = QRect(5, 5, 13 * nDPI / 96, 13 * nDPI / 96);
        option.state = QStyle::State(nState);
        option.palette.setColor(QPalette::Text, s_text);
        QPainter painter(&image);
        m_style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter, &widget);
        return image;
    }

    // The rectangle around all pixels of a colour, or of all others.
    static QRect areaOf(const QImage &image, const QColor &colour, bool bOthers = false)
    {
        QRect area;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if ((image.pixelColor(x, y) == colour) != bOthers)
                    area |= QRect(x, y, 1, 1);
            }
        }
        return area;
    }

    const Proxy m_style;
};

QTEST_MAIN(tst_KPAppStyle)
#include "tst_kpappstyle.moc"
