// SPDX-License-Identifier: MIT
// A random walk over the stage by keys, mouse, wheel and undo. After each step a second implementation,
// literal and slow, agrees about the project, its history, selection and zoom, and paints the same picture.
#include "stagedocument.h"
#include "stagemodel.h"
#include "stageview.h"

#include <support/coretest.h>

#include <random>

namespace {

const QSizeF s_stage(300, 200);

// After one edit, which made it out of the one before.
struct State
{
    StageProject project;
    QString text;
    int nScene = 0;
    QList<int> stepped; // the elements, if the edit was made of steps by the keyboard
};

// Whether the element, larger by so much at each edge, holds the point.
bool holds(const StageElement &element, const QPointF &point, double margin)
{
    QTransform transform;
    transform.translate(element.x + element.width / 2, element.y + element.height / 2);
    transform.rotate(element.rotation);
    const QPointF at = transform.inverted().map(point);
    const double x = at.x() / (element.width / 2 + margin);
    const double y = at.y() / (element.height / 2 + margin);
    return element.type == StageElement::Type::Ellipse ? x * x + y * y <= 1 : qMax(qAbs(x), qAbs(y)) <= 1;
}

void paint(QPainter &painter, const StageElement &element, bool bSelected)
{
    const QRectF box(0, 0, element.width, element.height);
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(element.x + element.width / 2, element.y + element.height / 2);
    painter.rotate(element.rotation);
    painter.translate(-element.width / 2, -element.height / 2);
    painter.setOpacity(element.opacity);
    painter.setBrush(element.fill.isValid() ? QBrush(element.fill) : Qt::NoBrush);
    painter.setPen(Qt::NoPen);
    if (element.stroke.isValid() && element.strokeWidth > 0)
        painter.setPen(QPen(element.stroke, element.strokeWidth));
    if (element.type == StageElement::Type::Rectangle)
        painter.drawRect(box);
    if (element.type == StageElement::Type::Ellipse)
        painter.drawEllipse(box);
    if (element.type == StageElement::Type::Text) {
        QFont font = painter.font();
        font.setFamily(element.fontFamily.isEmpty() ? font.family() : element.fontFamily);
        font.setPixelSize(qRound(element.fontSize));
        font.setBold(element.bold);
        painter.setFont(font);
        painter.setPen(element.fill.isValid() ? element.fill : QColor(Qt::black));
        const auto align = element.align == "left" ? Qt::AlignLeft
            : element.align == "right"             ? Qt::AlignRight
                                                   : Qt::AlignHCenter;
        painter.drawText(box, Qt::TextWordWrap | align, element.text);
    }
    if (element.type == StageElement::Type::Image && QFile::exists(element.source)) {
        painter.drawImage(box, QImage(element.source));
    } else if (element.type == StageElement::Type::Image) {
        painter.setPen(QPen(Qt::gray, 0));
        painter.drawRect(box);
        painter.drawLine(box.topLeft(), box.bottomRight());
        painter.drawLine(box.topRight(), box.bottomLeft());
    }
    if (bSelected) {
        QPen pen(QApplication::palette().color(QPalette::Highlight), 2);
        pen.setCosmetic(true);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(box);
    }
    painter.restore();
}

class Walk
{
public:
    Walk()
    {
        QImage picture(4, 2, QImage::Format_RGB32);
        picture.fill(Qt::magenta);
        picture.save(m_program.filePath("picture.png"));
        StageProject project;
        project.width = int(s_stage.width());
        project.height = int(s_stage.height());
        project.background = QColor("#e0f0ff");
        project.scenes = {StageScene {"One", {}, {}}, StageScene {"Two", {}, {}}};
        m_document.getModel()->setProject(project);
        m_states.append({project, QString(), 0, {}});
        m_view.resize(340, 250);
        m_view.show();
        QObject::connect(&m_view, &StageView::elementSelectionChanged, &m_view,
            [this] { m_told = m_view.selectedElements(); });
    }

    void step()
    {
        static constexpr void (Walk::*s_steps[])() = {&Walk::add, &Walk::move, &Walk::move, &Walk::move,
            &Walk::press, &Walk::press, &Walk::press, &Walk::travel, &Walk::travel, &Walk::tab, &Walk::zoom,
            &Walk::other};
        (this->*s_steps[pick(12)])();
        QCoreApplication::processEvents();
    }

    void check()
    {
        const QUndoStack *pStack = m_document.getUndoStack();
        QCOMPARE(pStack->index(), m_nState);
        QCOMPARE(pStack->count(), m_states.size() - 1);
        QCOMPARE(pStack->undoText(), m_states.at(m_nState).text);
        QCOMPARE(m_document.getModel()->project(), project());
        QCOMPARE(m_view.currentScene(), m_nScene);
        QCOMPARE(m_view.selectedElements(), m_selected);
        QCOMPARE(m_told, m_selected);
        QCOMPARE(m_view.accessibleDescription(), description());
        QVERIFY2(qAbs(m_view.transform().m11() / scale() - 1) < 1e-9, qPrintable(QString::number(scale())));
        const auto items = m_view.scene()->items(Qt::AscendingOrder);
        QCOMPARE(items.size(), elements().size());
        for (int i = 0; i < items.size(); ++i) {
            const double edge = elements().at(i).strokeWidth / 2;
            const QRectF box({}, QSizeF(elements().at(i).width, elements().at(i).height));
            QVERIFY(items.at(i)->boundingRect().contains(box.adjusted(-edge, -edge, edge, edge)));
        }
        comparePictures();
    }

    QStringList log;

private:
    // Steps.
    void add()
    {
        if (m_document.getModel()->elementCount() > 9)
            return removeSelected();
        const StageElement element = randomElement();
        log.append("add " + element.id);
        QVERIFY(m_view.addElement(element));
        StageProject after = project();
        after.scenes[m_nScene].elements.append(element);
        m_selected = {int(elements().size())};
        push({after, "add " + element.id, m_nScene, {}});
    }

    void removeSelected()
    {
        log.append("delete");
        QTest::keyClick(&m_view, Qt::Key_Delete, Qt::ControlModifier); // deletes nothing
        QTest::keyClick(&m_view, Qt::Key_Delete);
        if (m_selected.isEmpty())
            return;
        StageProject after = project();
        for (int i = int(m_selected.size()) - 1; i >= 0; --i)
            after.scenes[m_nScene].elements.removeAt(m_selected.at(i));
        m_selected.clear();
        push({after, "delete", m_nScene, {}});
    }

    void move()
    {
        static constexpr std::pair<Qt::Key, QPoint> s_keys[] = {
            {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
        const auto &[key, by] = s_keys[pick(4)];
        const int nKind = pick(6);
        const Qt::KeyboardModifiers modifiers = nKind == 0 ? Qt::ShiftModifier
            : nKind == 1                                   ? Qt::ControlModifier
                                                           : Qt::KeypadModifier;
        log.append(QString("move %1 %2").arg(key).arg(nKind));
        QTest::keyClick(&m_view, key, modifiers);
        const double far = nKind == 0 ? 10 : 1;
        if (nKind != 1 && nKind != 2)
            return moveBy(far * by, true);
        if (nKind == 1)
            return;
        m_view.moveSelected(2e6 * by.x(), 2e6 * by.y()); // further than a file may hold
        moveBy(by, true);
        moveBy(2e6 * QPointF(by), true);
    }

    void moveBy(const QPointF &by, bool bStep)
    {
        StageProject after = project();
        bool bMoves = false;
        for (const int nIndex : std::as_const(m_selected)) {
            StageElement &element = after.scenes[m_nScene].elements[nIndex];
            const QPointF from(element.x, element.y);
            element.x = qBound(-1e6, bStep ? element.x + by.x() : std::round(element.x + by.x()), 1e6);
            element.y = qBound(-1e6, bStep ? element.y + by.y() : std::round(element.y + by.y()), 1e6);
            bMoves = bMoves || from != QPointF(element.x, element.y);
        }
        if (bMoves)
            push({after, "move", m_nScene, bStep ? m_selected : QList<int>()});
    }

    // Clicks somewhere, or drags what is there.
    void press()
    {
        const QPoint at(pick(m_view.viewport()->width()), pick(m_view.viewport()->height()));
        const QPointF point = m_view.mapToScene(at);
        int nHit = -1;
        for (int i = 0; i < elements().size(); ++i) {
            const double edge = 3 / scale();
            if (holds(elements().at(i), point, edge) != holds(elements().at(i), point, -edge))
                return; // too near to tell
            nHit = holds(elements().at(i), point, 0) ? i : nHit;
        }
        const QPoint by = nHit >= 0 && pick(3) ? QPoint(pick(61) - 30, pick(61) - 30) : QPoint();
        log.append(QString("press %1, by %2 %3").arg(nHit).arg(by.x()).arg(by.y()));
        QTest::mousePress(m_view.viewport(), Qt::LeftButton, {}, at);
        for (int i = 1; i <= 3; ++i)
            QTest::mouseMove(m_view.viewport(), at + by * i / 3);
        QTest::mouseRelease(m_view.viewport(), Qt::LeftButton, {}, at + by);
        if (nHit < 0)
            m_selected.clear();
        else if (by.isNull() || !m_selected.contains(nHit))
            m_selected = {nHit};
        if (!by.isNull())
            moveBy(m_view.mapToScene(at + by) - point, false);
    }

    // By undo or redo, which shows the scene of the edit; what comes back is not selected.
    void travel()
    {
        const int nBy = pick(5) < 3 ? -1 : 1;
        log.append(nBy < 0 ? "undo" : "redo");
        nBy < 0 ? m_document.getUndoStack()->undo() : m_document.getUndoStack()->redo();
        if (m_nState + nBy < 0 || m_nState + nBy >= m_states.size())
            return;
        QStringList ids;
        for (const int nIndex : std::as_const(m_selected))
            ids.append(elements().at(nIndex).id);
        const int nScene = m_states.at(qMax(m_nState, m_nState + nBy)).nScene;
        m_nState += nBy;
        m_selected.clear();
        for (int i = 0; nScene == m_nScene && i < elements().size(); ++i) {
            if (ids.contains(elements().at(i).id))
                m_selected.append(i);
        }
        m_nScene = nScene;
    }

    void tab()
    {
        const bool bBack = pick(2);
        log.append(bBack ? "backtab" : "tab");
        QTest::keyClick(&m_view, bBack ? Qt::Key_Backtab : Qt::Key_Tab);
        const int nCount = int(elements().size());
        if (nCount == 0)
            return;
        const int nNext =
            bBack ? m_selected.value(0, nCount) - 1 : (m_selected.isEmpty() ? 0 : m_selected.last() + 1);
        m_selected = {(nNext + nCount) % nCount};
    }

    void zoom()
    {
        const int nHow = pick(10);
        log.append(QString("zoom %1").arg(nHow));
        const QPointF middle = m_view.viewport()->rect().center();
        static constexpr Qt::Key s_keys[] = {Qt::Key_0, Qt::Key_Plus, Qt::Key_Equal, Qt::Key_Minus};
        if (nHow < 4) {
            QTest::keyClick(&m_view, s_keys[nHow]); // without Ctrl nothing
            QTest::keyClick(&m_view, s_keys[nHow], Qt::ControlModifier);
        } else if (nHow < 7) {
            QWheelEvent wheel(middle, m_view.viewport()->mapToGlobal(middle), {}, {0, nHow == 4 ? -120 : 120},
                {}, nHow == 6 ? Qt::NoModifier : Qt::ControlModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(m_view.viewport(), &wheel);
        } else if (nHow == 7) {
            m_view.resize(300 + pick(60), 220 + pick(60));
        } else {
            m_view.zoomBy(nHow == 8 ? 0.2 : 5);
        }
        static constexpr double s_factors[] = {0, 1.25, 1.25, 0.8, 0.8, 1.25, 0, 0, 0.2, 5};
        const double after = scale() * s_factors[nHow];
        if (nHow == 0)
            m_scale = 0;
        else if (after >= 0.02 && after <= 32)
            m_scale = after;
    }

    void other()
    {
        const int nHow = pick(4);
        log.append(QString("other %1").arg(nHow));
        if (nHow == 0) {
            QTest::keyClick(&m_view, Qt::Key_A, Qt::ControlModifier);
            m_selected.resize(elements().size());
            std::iota(m_selected.begin(), m_selected.end(), 0);
        } else if (nHow == 1) {
            removeSelected();
        } else {
            if (nHow == 2)
                QTest::keyClick(&m_view, Qt::Key_Escape);
            else
                m_view.setCurrentScene(m_nScene = 1 - m_nScene);
            m_selected.clear();
        }
    }

    // The model.
    [[nodiscard]] const StageProject &project() const { return m_states.at(m_nState).project; }
    [[nodiscard]] const QList<StageElement> &elements() const
    {
        return project().scenes.at(m_nScene).elements;
    }

    // Steps of the same elements are one edit, and none when they end where they began.
    void push(const State &state)
    {
        m_states.resize(m_nState + 1);
        const State &last = m_states.last();
        if (state.stepped.isEmpty() || last.stepped != state.stepped || last.nScene != state.nScene)
            m_states.append(state);
        else
            m_states.last() = state;
        m_nState = int(m_states.size()) - 1;
        if (m_nState > 0 && state.project == m_states.at(m_nState - 1).project) {
            m_states.removeLast();
            --m_nState;
        }
    }

    [[nodiscard]] QString description() const
    {
        if (m_selected.size() != 1)
            return QString("%1 element(s) selected").arg(m_selected.size());
        const StageElement &element = elements().at(m_selected.first());
        return QString("%1 selected, at %2, %3").arg(element.id).arg(element.x).arg(element.y);
    }

    // Zero stands for the whole stage with twenty pixels around it.
    [[nodiscard]] double scale() const
    {
        const QSizeF room = m_view.viewport()->size() - QSize(4, 4);
        return m_scale != 0
            ? m_scale
            : qMin(room.width() / (s_stage.width() + 40), room.height() / (s_stage.height() + 40));
    }

    StageElement randomElement()
    {
        StageElement element;
        element.type = StageElement::Type(pick(4));
        const QString strName = QStringList({"rectangle", "ellipse", "text", "image"}).at(int(element.type));
        QStringList used;
        for (const StageScene &scene : project().scenes) {
            for (const StageElement &other : scene.elements)
                used.append(other.id);
        }
        for (int i = 1; element.id.isEmpty() || used.contains(element.id); ++i)
            element.id = QString("%1-%2").arg(strName).arg(i);
        element.width = 20 + pick(80);
        element.height = 20 + pick(60);
        element.x = std::round((s_stage.width() - element.width) / 2);
        element.y = std::round((s_stage.height() - element.height) / 2);
        element.rotation = pick(2) ? pick(360) : 0;
        element.opacity = pick(2) ? 0.5 : 1;
        element.fill = pick(3) ? QColor::fromHsv(pick(360), 200, 200) : QColor();
        element.stroke = pick(2) ? QColor::fromHsv(pick(360), 255, 120) : QColor();
        element.strokeWidth = pick(3) * 1.5;
        element.text = "Kelp on the rocks";
        element.bold = pick(2);
        element.align = QStringList({"left", "center", "right"}).at(pick(3));
        element.fontFamily = pick(2) ? "DejaVu Serif" : "";
        element.fontSize = 8 + pick(8);
        element.source = m_program.filePath(pick(2) ? "picture.png" : "missing.png");
        return element;
    }

    void comparePictures()
    {
        const QImage actual = m_view.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
        QImage expected(actual.size(), actual.format());
        const QColor desk(0x4a, 0x4f, 0x57);
        expected.fill(desk);
        QPainter painter(&expected);
        painter.setFont(m_view.font());
        painter.setTransform(m_view.viewportTransform());
        painter.fillRect(QRectF({}, s_stage), project().background);
        for (int i = 0; i < elements().size(); ++i)
            paint(painter, elements().at(i), m_selected.contains(i));
        QPainterPath outside;
        outside.addRect(m_view.mapToScene(m_view.viewport()->rect()).boundingRect());
        outside.addRect(QRectF({}, s_stage));
        QColor veil = desk;
        veil.setAlphaF(0.7F);
        painter.fillPath(outside, veil);
        painter.end();
        const auto near = [](uchar a, uchar b) { return qAbs(a - b) <= 4; }; // how the veil is rounded
        QVERIFY(std::equal(
            actual.constBits(), actual.constBits() + actual.sizeInBytes(), expected.constBits(), near));
    }

    int pick(int nCount) { return int(m_random() % unsigned(nCount)); }

    const TestProgram m_program;
    StageDocument m_document;
    StageView m_view {&m_document, m_document.getModel()};
    std::mt19937 m_random {4711};
    QList<State> m_states;
    int m_nState = 0;
    int m_nScene = 0;
    QList<int> m_selected;
    QList<int> m_told;
    double m_scale = 0;
};

} // namespace

class tst_StageView : public QObject
{
    Q_OBJECT

private slots:
    void theStageAgreesWithASecondImplementation()
    {
        Walk walk;
        for (int i = 0; i < 800; ++i) {
            walk.step();
            walk.check();
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(walk.log.mid(qMax(0, int(walk.log.size()) - 40)).join('\n')));
        }
    }
};

QTEST_MAIN(tst_StageView)
#include "tst_stageview.moc"
