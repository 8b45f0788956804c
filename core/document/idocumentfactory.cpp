// SPDX-License-Identifier: MIT
#include "document/idocumentfactory.h"

IDocumentFactory::IDocumentFactory(QObject *pParent)
    : QObject(pParent)
{
}

IDocumentFactory::~IDocumentFactory() = default;
