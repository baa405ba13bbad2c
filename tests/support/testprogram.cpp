// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <QFileInfo>
#include <QMap>

#include <cstdio>

namespace {

using Tests = QMap<QString, TestProgram::Main>;

Tests &tests()
{
    static Tests tests; // there when the first one is added, whichever source that is in
    return tests;
}

} // namespace

bool TestProgram::add(const char *file, Main main)
{
    tests().insert(QFileInfo(QString::fromUtf8(file)).baseName(), main);
    return true;
}

int main(int argc, char **argv)
{
    const Tests::const_iterator test =
        argc > 1 ? tests().constFind(QString::fromLocal8Bit(argv[1])) : tests().constEnd();
    if (test == tests().constEnd()) {
        std::fprintf(stderr, "Usage: %s TEST [OPTION...]\nThe tests are:\n", argv[0]);
        for (auto each = tests().constBegin(); each != tests().constEnd(); ++each) {
            std::fprintf(stderr, "  %s\n", qUtf8Printable(each.key()));
        }
        return 2;
    }
    return test.value()(argc - 1, argv + 1);
}
