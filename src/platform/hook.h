// A hook is the seam through which a lower floor calls a higher one: the lower floor declares the
// procedure that it calls, the higher floor fills it in when the program is put together
// (shell/wiring.cpp). A plain synchronous call; an empty hook does nothing and gives R{}.
#pragma once

#include <concepts>

template <class Signature>
class Hook;

template <class R, class... Arguments>
class Hook<R(Arguments...)> {
  public:
    using Procedure = R (*)(Arguments...);

    constexpr Hook() = default;
    // Filled by plain assignment of a procedure or of a lambda that captures nothing.
    template <class Body>
    requires std::convertible_to<Body, Procedure>
    constexpr Hook(Body body) : procedure_(body) {}

    constexpr bool Filled() const { return procedure_ != nullptr; }

    R operator()(Arguments... arguments) const {
        if (procedure_ != nullptr) return procedure_(arguments...);
        return R();
    }

  private:
    Procedure procedure_ = nullptr;
};
