// SPDX-License-Identifier: MIT
#pragma once

#include "stageproject.h"

#include <QObject>
#include <QPointF>

/// The project of one open document, with a signal for each change. Undo commands make the changes; as undo
/// and redo run in order, an index means the same element each time a command runs. Only elements() checks
/// its index: an unknown scene has none. The document owns the model. GUI thread only.
class StageModel : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageModel)

public:
    using QObject::QObject;

    [[nodiscard]] const StageProject &project() const { return m_project; }

    /// Replaces the whole project and emits reset().
    void setProject(const StageProject &project);

    void insertElement(int nScene, int nIndex, const StageElement &element);
    void removeElement(int nScene, int nIndex);
    void moveElement(int nScene, int nIndex, const QPointF &position);

    [[nodiscard]] const QList<StageElement> &elements(int nScene) const;
    [[nodiscard]] int elementCount() const;

    /// The name of the type with the first number, as in "text-2", that is no element's id in any scene.
    [[nodiscard]] QString freeId(StageElement::Type type) const;

signals:
    void reset();
    void elementInserted(int nScene, int nIndex);
    void elementRemoved(int nScene, int nIndex);
    void elementMoved(int nScene, int nIndex);

private:
    StageProject m_project;
};
