#pragma once

#include <QString>

#include <optional>
#include <utility>

/// A value, or an error message that says why there is none.
template<typename T>
class KxResult
{
public:
    KxResult(T value) // NOLINT(google-explicit-constructor): functions return their values as they are
        : m_value(std::move(value))
    {
    }
    static KxResult Failure(QString message)
    {
        KxResult result;
        result.m_message = std::move(message);
        return result;
    }

    explicit operator bool() const { return m_value.has_value(); }
    T& operator*() { return *m_value; }
    const T& operator*() const { return *m_value; }
    T* operator->() { return &*m_value; }
    const T* operator->() const { return &*m_value; }
    /// Empty when there is a value.
    const QString& Message() const { return m_message; }

private:
    KxResult() = default;

    std::optional<T> m_value;
    QString m_message;
};

/// For work that yields nothing: nothing on success, otherwise an error message.
using KxError = std::optional<QString>;

/// How a job ended. A cancelled job has not failed.
enum class KxOutcome { Done, Cancelled, Failed };
