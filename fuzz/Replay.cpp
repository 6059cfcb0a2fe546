// In the place of libFuzzer, for every compiler: hands a fuzz target the files that it begins with,
// so that its promises are held at each test run.
//   replay_NAME FOLDER...

#include "fuzz/Harness.h"

#include <QDirIterator>
#include <QFile>

#include <cstdio>

int main(int argc, char** argv)
{
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator files(QString::fromLocal8Bit(argv[i]), QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            pelorin::fuzz::Require(file.open(QIODevice::ReadOnly), "the input can be read");
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(
                reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                static_cast<std::size_t>(bytes.size()));
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;
}
