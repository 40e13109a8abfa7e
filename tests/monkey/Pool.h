#pragma once

#include "monkey/Catalogue.h"

#include <QPointer>
#include <QWidget>

#include <vector>

namespace Monkey {

/// The objects that are alive, with what the catalogue knows of them.
class Pool
{
public:
    struct Member
    {
        QPointer<QWidget> object;
        const ClassEntry* entry;
    };

    void add(QWidget* object, const ClassEntry& entry) { m_members.push_back({object, &entry}); }
    /// A living member, or one without an object if there is none.
    Member any(Random& random);
    const std::vector<Member>& members();
    bool contains(const QObject* object) const;
    int size() { return static_cast<int>(members().size()); }

private:
    void dropDead();

    std::vector<Member> m_members;
};

} // namespace Monkey
