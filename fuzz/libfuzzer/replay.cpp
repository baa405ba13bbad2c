// SPDX-License-Identifier: MIT
#include "fuzztarget.h"

#include <QDir>
#include <QFile>

/** Runs a fuzz target on every file in the folders that are named. */
int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        const QDir folder(QFile::decodeName(argv[i]));
        const QStringList names = folder.entryList(QDir::Files, QDir::Name);
        for (const QString &name : names) {
            QFile file(folder.filePath(name));
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "cannot read %s\n", qPrintable(file.fileName()));
                return EXIT_FAILURE;
            }
            const QByteArray input = file.readAll();
            std::printf("%s\n", qPrintable(name));
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()),
                                   size_t(input.size()));
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
