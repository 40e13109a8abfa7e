#include "monkey/Pool.h"

#include <algorithm>

namespace Monkey {

Pool::Member Pool::any(Random& random)
{
    dropDead();
    if (m_members.empty())
        return {nullptr, nullptr};
    return m_members[random.below(static_cast<int>(m_members.size()))];
}

const std::vector<Pool::Member>& Pool::members()
{
    dropDead();
    return m_members;
}

bool Pool::contains(const QObject* object) const
{
    return std::any_of(m_members.begin(), m_members.end(),
                       [object](const Member& member) { return member.object == object; });
}

void Pool::dropDead()
{
    const auto isDead = [](const Member& member) {
        return member.object.isNull();
    };
    m_members.erase(std::remove_if(m_members.begin(), m_members.end(), isDead), m_members.end());
}

} // namespace Monkey
