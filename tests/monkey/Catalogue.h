#pragma once

#include "monkey/Random.h"

#include <QObject>

#include <functional>
#include <tuple>
#include <vector>

namespace Monkey {

/// One public operation of a class, to be called on an object of it with drawn arguments.
struct Operation
{
    const char* name;
    std::function<void(QObject*, Random&)> call;
    /// Whether one of its arguments is a text.
    bool takesText;
};

/// How slots of the class's own signals may end the object.
enum class Ending {
    AtOnce,
    /// With deleteLater() only, as the class asks for.
    Later
};

/// A public class of the library: how to make one, and everything to be done with it.
struct ClassEntry
{
    const char* name;
    std::function<QObject*(Random&, QWidget*)> create;
    std::vector<Operation> operations;
    Ending ending = Ending::AtOnce;
};

/// Describes a class: Describe<WyLabel>("WyLabel").call("setText", &WyLabel::setText)…
template <typename Class>
class Describe
{
public:
    explicit Describe(const char* name)
    {
        m_entry.name = name;
        if constexpr (std::is_constructible_v<Class, QWidget*>)
            m_entry.create = [](Random&, QWidget* parent) -> QObject* {
                return new Class(parent);
            };
    }

    Describe& createdBy(std::function<QObject*(Random&, QWidget*)> create)
    {
        m_entry.create = std::move(create);
        return *this;
    }

    Describe& endsLater()
    {
        m_entry.ending = Ending::Later;
        return *this;
    }

    template <typename Owner, typename Result, typename... Arguments>
    Describe& call(const char* name, Result (Owner::*function)(Arguments...))
    {
        return add<Arguments...>(name, [function](Class* object, auto&&... values) {
            (object->*function)(std::forward<decltype(values)>(values)...);
        });
    }

    template <typename Owner, typename Result, typename... Arguments>
    Describe& call(const char* name, Result (Owner::*function)(Arguments...) const)
    {
        return add<Arguments...>(name, [function](Class* object, auto&&... values) {
            (object->*function)(std::forward<decltype(values)>(values)...);
        });
    }

    template <typename Result, typename... Arguments>
    Describe& call(const char* name, Result (*function)(Arguments...))
    {
        return add<Arguments...>(name, [function](Class*, auto&&... values) {
            function(std::forward<decltype(values)>(values)...);
        });
    }

    /// For what the arguments alone do not tell.
    Describe& callWith(const char* name, std::function<void(Class&, Random&)> function,
                       bool takesText = false)
    {
        m_entry.operations.push_back({name,
                                      [function = std::move(function)](QObject* object, Random& random) {
                                          function(*static_cast<Class*>(object), random);
                                      },
                                      takesText});
        return *this;
    }

    operator ClassEntry() const { return m_entry; }

private:
    template <typename... Arguments, typename Function>
    Describe& add(const char* name, Function function)
    {
        const auto call = [function](Class& object, Random& random) {
            // Braces, as they fix the order of the draws.
            std::tuple<std::decay_t<Arguments>...> values{random.draw<std::decay_t<Arguments>>()...};
            std::apply([&](auto&... drawn) { function(&object, drawn...); }, values);
        };
        return callWith(name, call, (std::is_same_v<std::decay_t<Arguments>, QString> || ...));
    }

    ClassEntry m_entry;
};

/// All public classes of the library.
const std::vector<ClassEntry>& catalogue();

// Its parts, one a folder or family.
std::vector<ClassEntry> frameClasses();
std::vector<ClassEntry> buttonClasses();
std::vector<ClassEntry> controlClasses();
std::vector<ClassEntry> popupClasses();
std::vector<ClassEntry> toastClasses();

} // namespace Monkey
