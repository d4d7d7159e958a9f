#pragma once

#include <exception>
#include <utility>

namespace vcl
{

/// Takes steps that must all be taken although one of them may raise:
///
///     TFirstFailure Failure;
///     Failure.Try([&] { OnClose(this); });
///     Release();
///     Failure.Rethrow();
class TFirstFailure
{
public:
    /// False when Action raised; the first exception is kept.
    template <class TAction>
    bool Try(TAction&& Action)
    {
        try {
            std::forward<TAction>(Action)();
            return true;
        } catch (...) {
            if (!FException)
                FException = std::current_exception();
            return false;
        }
    }

    /// Null: nothing was raised.
    std::exception_ptr Get() const { return FException; }
    void Rethrow() const
    {
        if (FException)
            std::rethrow_exception(FException);
    }

private:
    std::exception_ptr FException;
};

} // namespace vcl
