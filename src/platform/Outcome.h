#pragma once

#include "platform/Wording.h"

#include <QString>

#include <utility>
#include <variant>

namespace pelorin::platform {

enum class ErrorKind {
    NotFound,    // a file, folder or program that should be there is not
    Unreadable,  // it is there and can't be read
    Unwritable,  // it can't be written: rights, full disk, read-only file system
    Malformed,   // what was read is not in its format
    Unencodable, // a text holds characters that its file can't keep
    Refused,     // asked for something that is not done (empty name, root folder, link ...)
    Abandoned,   // the program is ending, or the user gave up
};

/// Why something failed: a kind for the program and a text for the user, which names the file.
struct Error {
    ErrorKind kind = ErrorKind::Malformed;
    QString text;    // English
    Wording words{}; // the same in the language of the window; empty where nobody has worded it

    static Error Worded(ErrorKind kind, const Wording& words)
    {
        return Error{kind, words.English(), words};
    }
    /// What to tell: the words, or else the text as it stands.
    Wording Told() const { return words.english.isEmpty() ? Wording{0, text, {}} : words; }
};

/// A value, or the error that stands in its place. Never both, never neither.
template <class T>
class [[nodiscard]] Outcome {
public:
    Outcome(T value) // NOLINT(google-explicit-constructor): `return value;` is the point
        : m_state(std::in_place_index<0>, std::move(value))
    {}
    Outcome(Error error) // NOLINT(google-explicit-constructor)
        : m_state(std::in_place_index<1>, std::move(error))
    {}

    bool Ok() const { return m_state.index() == 0; }
    explicit operator bool() const { return Ok(); }

    /// Only when Ok().
    const T& Value() const { return std::get<0>(m_state); }
    T& Value() { return std::get<0>(m_state); }
    T Take() { return std::move(std::get<0>(m_state)); }
    T ValueOr(T fallback) const { return Ok() ? Value() : std::move(fallback); }

    /// Only when not Ok().
    const Error& Failure() const { return std::get<1>(m_state); }

private:
    std::variant<T, Error> m_state;
};

struct Nothing {};

/// The result of a procedure that gives nothing but success.
using Done = Outcome<Nothing>;

inline Done Success()
{
    return Done(Nothing{});
}

} // namespace pelorin::platform
