// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Model/Engine.h"

#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"

NLEComPtr<INLEFactory> EngineFactory()
{
    NLEWraper::GetInstance(nullptr);
    NLEComPtr<INLEFactory> factory;
    if (!CVCreateInstance::Instance()->cvCreateInstance(INLEFactory::ClassId, nullptr, 0,
                                                        INLEFactory::Iid, factory.putVoid()))
        factory.forget();
    return factory;
}

PlayerMaterProvider& EngineProvider()
{
    return *NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
}

NLEComPtr<INLEProperties> BagOf(INLETimeline* node)
{
    NLEComPtr<INLEProperties> bag;
    if (!node || FAILED(node->GetProperties(bag.put())))
        bag.forget();
    return bag;
}

QVector<NLEComPtr<INLETimeline>> NodesOf(INLETimelineEnumerator& walk)
{
    QVector<NLEComPtr<INLETimeline>> nodes;
    bool isEmpty = true;
    if (FAILED(walk.IsEmpty(&isEmpty)) || isEmpty)
        return nodes;
    do {
        NLEComPtr<INLETimeline> node;
        if (SUCCEEDED(walk.GetCurrent(node.put())) && node)
            nodes << node;
    } while (walk.Next() == S_OK);
    return nodes;
}
