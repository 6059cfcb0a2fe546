#pragma once

#include <QByteArray>
#include <QTemporaryFile>

#include <gtest/gtest.h>
#include <unistd.h>

namespace pelorin::test {

/// Keeps what this process writes to its standard error within the scope.
class StandardError {
public:
    StandardError()
        : m_before(dup(STDERR_FILENO))
    {
        EXPECT_TRUE(m_file.open());
        EXPECT_GE(dup2(m_file.handle(), STDERR_FILENO), 0);
    }
    ~StandardError()
    {
        dup2(m_before, STDERR_FILENO);
        close(m_before);
    }
    StandardError(const StandardError&) = delete;
    StandardError& operator=(const StandardError&) = delete;

    QByteArray Text()
    {
        m_file.seek(0);
        return m_file.readAll();
    }

private:
    QTemporaryFile m_file;
    int m_before;
};

} // namespace pelorin::test
