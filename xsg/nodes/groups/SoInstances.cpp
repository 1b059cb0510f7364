// SPDX-License-Identifier: MIT
#include <xsg/nodes/groups/SoInstances.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoInstances, SoGroup>;

void SoInstances::apply(SoState& state) const
{
    auto all = std::make_shared<std::vector<SbMatrix>>();
    const int count = matrices.getNum();
    bool isFull = false;
    for (int i = 0; i < count && !isFull; ++i)
        state.forEachInstance([&](const SbMatrix& toWorld) {
            isFull = all->size() == MostCopies;
            if (!isFull)
                all->push_back(matrices[i] * toWorld);
        });
    state.lacksInstances |= isFull;
    state.instances = std::move(all);
    state.modelMatrix = SbMatrix();
}

SoChildRange SoInstances::getChosenChildren(const SoState& /*state*/) const
{
    return {0, matrices.getNum() > 0 ? getNumChildren() : 0};
}
