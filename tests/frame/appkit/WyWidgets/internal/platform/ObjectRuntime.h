#pragma once

// Stands before the library's header of this name: the same declarations, but messages are recorded instead
// of sent, with the exact types that the call passes and expects.

#include <QHash>
#include <QStringList>

#include <utility>

struct objc_object;
struct objc_selector;
struct objc_class;
using id = objc_object*;
using SEL = objc_selector*;
using Class = objc_class*;
using BOOL = signed char;

/// The objects that take part and what they answer.
class RecordedRuntime
{
public:
    static RecordedRuntime& instance();

    /// An object that the record shows by this name.
    id object(const QString& name);
    /// Names an object that exists elsewhere.
    void name(id object, const QString& name) { m_names.insert(object, name); }
    /// What the object answers to messages that return an object; nil if nothing is said.
    void answer(id receiver, const QString& selector, id result)
    {
        m_answers.insert({receiver, selector}, result);
    }

    /// "[receiver selector (type)argument] type" for each message, in order.
    QStringList messages;
    unsigned long styleMask = 0;

    template <typename Result, typename... Arguments>
    static Result record(id receiver, SEL selector, Arguments... arguments)
    {
        RecordedRuntime& runtime = instance();
        const QString name = QString::fromLatin1(reinterpret_cast<const char*>(selector));
        QString line = '[' + runtime.text(receiver) + ' ' + name;
        ((line += ' ' + runtime.text(arguments)), ...);
        runtime.messages += line + "] " + typeName<Result>();
        if constexpr (std::is_same_v<Result, id>)
            return runtime.m_answers.value({receiver, name});
        else if constexpr (std::is_same_v<Result, unsigned long>)
            return runtime.styleMask;
    }

private:
    template <typename Type>
    static QString typeName();

    QString text(id object) const
    {
        return object ? m_names.value(object, QStringLiteral("unknown")) : "nil";
    }
    QString text(BOOL value) const { return QStringLiteral("(BOOL)%1").arg(int(value)); }
    QString text(long value) const { return QStringLiteral("(long)%1").arg(value); }
    QString text(unsigned long value) const { return QStringLiteral("(unsigned long)%1").arg(value); }

    QHash<id, QString> m_names;
    QHash<std::pair<id, QString>, id> m_answers;
};

template <>
inline QString RecordedRuntime::typeName<void>()
{
    return QStringLiteral("void");
}
template <>
inline QString RecordedRuntime::typeName<id>()
{
    return QStringLiteral("id");
}
template <>
inline QString RecordedRuntime::typeName<unsigned long>()
{
    return QStringLiteral("unsigned long");
}

/// Casts to a function of any signature that takes a receiver and a selector first, as the real one does.
class MessageSender
{
    template <typename Result, typename... Arguments>
    using Method = Result (*)(id, SEL, Arguments...);

public:
    template <typename Result, typename... Arguments>
    operator Method<Result, Arguments...>() const
    {
        return &RecordedRuntime::record<Result, Arguments...>;
    }
};

inline constexpr MessageSender objc_msgSend;

/// Selectors are their names here.
SEL sel_registerName(const char* name);
/// A class object named as the class.
Class objc_getClass(const char* name);

extern "C" id NSApp;
