#pragma once

#include "library/GameFiles.h"
#include "library/ScanProgress.h"
#include "shell/Places.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

// What the fuzz targets share. A target hands the bytes that it is given to one reader, by way of
// the file that the reader knows, and then holds the reader to a promise: what was read and is
// written again reads the same.

namespace pelorin::fuzz {

/// The bytes that the fuzzer made up.
QByteArray BytesOf(const std::uint8_t* data, std::size_t size);

/// Ends the process with the text, so that the fuzzer keeps the input.
void Require(bool promise, const char* text);

/// What the lines become in a file; characters that it can't keep are the same then.
QByteArray AsWritten(const QStringList& lines);

/// An installation with a game "Star" that has a metadata folder, in a temporary folder that goes
/// with the process. Files outlive one input: a target writes or removes all that it reads.
class FuzzInstallation {
public:
    FuzzInstallation();

    const shell::Places& Places() const { return m_places; }
    QString InApp(const QString& name) const;
    QString InMeta(const QString& name) const;
    library::GameFiles Star() const;

    static void Write(const QString& path, const QByteArray& bytes);
    static void Remove(const QString& path);

private:
    QTemporaryDir m_folder;
    shell::Places m_places;
};

/// Long jobs run to their end, and nobody looks.
class NoProgress : public library::ScanProgress {
public:
    void Begin(library::Phase phase, int maximum) override;
    bool Step(library::Phase phase, int value, int percent) override;
};

} // namespace pelorin::fuzz

/// The entry that libFuzzer (or Replay.cpp) calls.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
