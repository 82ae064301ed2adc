#pragma once
#include "platform/RuntimeError.h"

#include <functional>
#include <utility>

// Shows the platform's "Run-time error 'N':" box for a failure nobody trapped.
void ReportRunTimeError(const RuntimeError& e);

// An event procedure: the handler a control's signal runs. A run-time error that escapes the
// handler is shown right here, so that it never unwinds through the toolkit's own code and the
// program goes on as the application-wide net promises.
template <class F>
struct EventProcedure {
    F handler;
    template <class... A>
    auto operator()(A&&... args) const -> decltype(std::invoke(handler, std::forward<A>(args)...), void())
    {
        try {
            std::invoke(handler, std::forward<A>(args)...);
        } catch (const RuntimeError& e) {
            ReportRunTimeError(e);
        }
    }
};

template <class F>
EventProcedure<F> Event(F handler)
{
    return EventProcedure<F>{std::move(handler)};
}
