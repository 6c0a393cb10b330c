#pragma once

#include <string>
#include <type_traits>
#include <utility>
#include <variant>

namespace tvpolicy {

/// Why a call gave no value, in words for a person ("No such file or directory",
/// "the server answered 404"). Converts to a Result of any type.
///
/// `code` tells failures apart where a caller acts on the difference, not only reports it:
/// a number whose meaning the failing call documents (an HTTP status, a kind of DNS failure
/// numbered like the resolver's h_errno); 0 when the words are all there is.
struct Failure {
    std::string why;
    int code = 0;
};

/// What a call of ours gives back when it can fail: its value, or a Failure saying why. The
/// one way our own interfaces report failure (the specified classes keep their signatures):
///
///     Result<std::string> readConfig(const std::string& path);
///     ...
///     auto text = readConfig(path);
///     if (!text) {
///         std::cerr << path << ": " << text.error() << '\n';
///         return;
///     }
///     use(*text);
///
/// A function returns a value as it is (`return text;`) and a failure as
/// `return Failure{"why"};`. Result<void> is success or a Failure, nothing more.
template <typename T>
class [[nodiscard]] Result {
    static_assert(!std::is_same_v<std::decay_t<T>, Failure>, "a Result holds a value, not a failure");

public:
    template <typename U = T,
              typename = std::enable_if_t<!std::is_same_v<std::decay_t<U>, Result> &&
                                          !std::is_same_v<std::decay_t<U>, Failure> && std::is_constructible_v<T, U&&>>>
    Result(U&& value) : state_(std::in_place_index<0>, std::forward<U>(value))  // NOLINT(google-explicit-constructor)
    {
    }
    Result(Failure failure) : state_(std::in_place_index<1>, std::move(failure)) {}  // NOLINT

    bool ok() const { return state_.index() == 0; }
    explicit operator bool() const { return ok(); }

    /// The value; only when ok().
    T& value() & { return std::get<0>(state_); }
    const T& value() const& { return std::get<0>(state_); }
    T&& value() && { return std::get<0>(std::move(state_)); }
    T& operator*() & { return value(); }
    const T& operator*() const& { return value(); }
    T&& operator*() && { return std::move(*this).value(); }
    T* operator->() { return &value(); }
    const T* operator->() const { return &value(); }

    /// The value, or `fallback` when there is none.
    T valueOr(T fallback) const& { return ok() ? value() : std::move(fallback); }
    T valueOr(T fallback) && { return ok() ? std::move(*this).value() : std::move(fallback); }

    /// Why there is no value; empty when ok().
    const std::string& error() const
    {
        static const std::string none;
        return ok() ? none : std::get<1>(state_).why;
    }
    /// The failure's code; 0 when ok() or when the failure has none.
    int code() const { return ok() ? 0 : std::get<1>(state_).code; }

private:
    std::variant<T, Failure> state_;
};

template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Failure failure)  // NOLINT(google-explicit-constructor)
        : why_(std::move(failure.why)),
          code_(failure.code),
          ok_(false)
    {
    }

    bool ok() const { return ok_; }
    explicit operator bool() const { return ok_; }
    /// Why it failed; empty when ok().
    const std::string& error() const { return why_; }
    /// The failure's code; 0 when ok() or when the failure has none.
    int code() const { return code_; }

private:
    std::string why_;
    int code_ = 0;
    bool ok_ = true;
};

}  // namespace tvpolicy
