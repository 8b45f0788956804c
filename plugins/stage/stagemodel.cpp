// SPDX-License-Identifier: MIT
#include "stagemodel.h"

#include "stageformat.h"

#include <QSet>

void StageModel::setProject(const StageProject &project)
{
    m_project = project;
    emit reset();
}

void StageModel::insertElement(int nScene, int nIndex, const StageElement &element)
{
    m_project.scenes[nScene].elements.insert(nIndex, element);
    emit elementInserted(nScene, nIndex);
}

void StageModel::removeElement(int nScene, int nIndex)
{
    m_project.scenes[nScene].elements.removeAt(nIndex);
    emit elementRemoved(nScene, nIndex);
}

void StageModel::moveElement(int nScene, int nIndex, const QPointF &position)
{
    StageElement &element = m_project.scenes[nScene].elements[nIndex];
    element.x = position.x();
    element.y = position.y();
    emit elementMoved(nScene, nIndex);
}

const QList<StageElement> &StageModel::elements(int nScene) const
{
    static const QList<StageElement> s_none;
    return nScene >= 0 && nScene < m_project.scenes.size() ? m_project.scenes.at(nScene).elements : s_none;
}

int StageModel::elementCount() const
{
    int nCount = 0;
    for (const StageScene &scene : m_project.scenes)
        nCount += static_cast<int>(scene.elements.size());
    return nCount;
}

QString StageModel::freeId(StageElement::Type type) const
{
    QSet<QString> used;
    for (const StageScene &scene : m_project.scenes) {
        for (const StageElement &element : scene.elements)
            used.insert(element.id);
    }
    const QString strName = StageFormat::typeName(type);
    for (int i = 1;; ++i) {
        const QString strId = QStringLiteral("%1-%2").arg(strName).arg(i);
        if (!used.contains(strId))
            return strId;
    }
}
