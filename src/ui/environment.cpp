#include "ui/environment.h"

namespace qf::ui {

void ProcessControl::Run(const std::function<void()>& handler)
{
    if (ended_) {
        return;
    }
    try {
        handler();
    } catch (const core::RuntimeError& error) {
        if (ended_) {
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
