// SPDX-License-Identifier: MIT
#pragma once

#include "stageproject.h"

#include <QObject>
#include <QPointF>

/// The project of one open document, with a signal for each change. Changes come from undo commands, which
/// address elements by their index: at the time a command runs it means the same element again. The document
/// owns it. GUI thread only.
class StageModel : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StageModel)

public:
    using QObject::QObject;

    [[nodiscard]] const StageProject &project() const { return m_project; }

    /// Replaces all; emits reset().
    void setProject(const StageProject &project);

    void insertElement(int nScene, int nIndex, const StageElement &element);
    void removeElement(int nScene, int nIndex);
    void moveElement(int nScene, int nIndex, const QPointF &position);

    [[nodiscard]] const QList<StageElement> &elements(int nScene) const;
    [[nodiscard]] int elementCount() const;

    /// The name of the type with the first number that no element has yet.
    [[nodiscard]] QString freeId(StageElement::Type type) const;

signals:
    void reset();
    void elementInserted(int nScene, int nIndex);
    void elementRemoved(int nScene, int nIndex);
    void elementMoved(int nScene, int nIndex);

private:
    StageProject m_project;
};
