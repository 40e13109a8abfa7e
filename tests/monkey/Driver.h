#pragma once

#include "monkey/Invariants.h"
#include "monkey/Pool.h"
#include "monkey/Random.h"

class QDialog;

namespace Monkey {

class VirtualTime;

/// Draws one action after the other and carries it out.
class Driver : public QObject
{
    Q_OBJECT

public:
    Driver(quint64 seed, int steps, VirtualTime& time);

    /// Runs all steps in the application's event loop, cleans up and checks that nothing is left.
    void run();

    /// Extreme sizes are welcome as long as no window server has to hold their pixels.
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    /// A signal of one of the objects: whatever a host may do in a slot.
    void spring();

private:
    void work();
    void step();
    void finish();

    void create();
    QWidget* create(const ClassEntry& entry);
    void destroy();
    bool mayDieAtOnce(QWidget* object) const;
    void operate(const Pool::Member& member);
    void crowd();
    void damage();
    void changeApplication();
    void exec();
    void connectSignals(QWidget* object);

    Random m_random;
    VirtualTime& m_time;
    Pool m_pool;
    Invariants m_invariants;
    int m_stepsLeft;
    int m_step = 0;
    int m_slotDepth = 0;
    /// Signals under way of classes whose slots must not end them at once.
    int m_fragile = 0;
    QPointer<QDialog> m_modal;
    bool m_finishing = false;
};

} // namespace Monkey
