#include "ui/environment.h"

#include <utility>

namespace qf::ui {

namespace {

/// Unwinds a handler whose work is over; what ended it is told already, or kept for the outermost handler.
struct HandlerStopped {};

} // namespace

void ProcessControl::Run(const std::function<void()>&                          handler,
                         const std::function<void(const core::RuntimeError&)>& onError)
{
    if (ended_ || failure_) {
        return;
    }
    ++depth_;
    try {
        handler();
    } catch (const HandlerStopped&) {
        // Nothing to add: the failure is kept, or the process has ended in order.
    } catch (...) {
        if (!failure_) {
            failure_ = std::current_exception();
        }
    }
    --depth_;
    if (failure_ && (depth_ == 0 || onError)) {
        Report(std::exchange(failure_, nullptr), onError);
    }
}

void ProcessControl::ThrowIfStopped() const
{
    if (depth_ > 0 && (ended_ || failure_)) {
        throw HandlerStopped{};
    }
}

void ProcessControl::Report(std::exception_ptr failure, const std::function<void(const core::RuntimeError&)>& onError)
{
    if (ended_) {
        return;
    }
    try {
        std::rethrow_exception(std::move(failure));
    } catch (const core::RuntimeError& error) {
        if (onError) {
            onError(error);
            return;
        }
        ended_ = true;
        if (beforeFailure) {
            beforeFailure();
        }
        OnFailure(error);
    } catch (...) {
        OnForeignException();
    }
}

void ProcessControl::End()
{
    if (!ended_) {
        ended_ = true;
        OnEnd();
    }
}

} // namespace qf::ui
