#include "scenario/event_loop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

namespace qf::scenario {

namespace {

/// No program needs so many rounds; a timer without an interval that starts itself again would.
constexpr int MostRounds = 1000;

} // namespace

void RunUntilIdle()
{
    auto* dispatcher = QAbstractEventDispatcher::instance();
    for (int round = 0; round < MostRounds; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (!dispatcher->processEvents(QEventLoop::AllEvents)) {
            return;
        }
    }
}

TimerStop::TimerStop()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool TimerStop::eventFilter(QObject* object, QEvent* event)
{
    return event->type() == QEvent::Timer && qobject_cast<QTimer*>(object) != nullptr &&
           !object->objectName().isEmpty();
}

} // namespace qf::scenario
