// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QTest>

#include <type_traits>

/**
 * A program has the tests of a folder, since linking one for each took longer than compiling them.
 * Its first argument says which of them runs, as in
 *
 *     build/dev/tests/value/value_tests tst_slider
 *
 * and the test gets the others, with its own name as that of the program.
 */
namespace TestProgram {

using Main = int (*)(int argc, char **argv);

/** Adds the test in the source file @p file, whose name it gets. */
bool add(const char *file, Main main);

} // namespace TestProgram

/** The application of a test that makes its own, or none. */
struct NoApplication
{
    NoApplication(int &, char **) { }
};

template <typename Test, typename Application> int runTest(int argc, char **argv)
{
    Application application(argc, argv);
    if constexpr (!std::is_same_v<Application, NoApplication>) {
        QCoreApplication::setAttribute(Qt::AA_Use96Dpi); // as in Qt's own QTEST_MAIN()
    }
    Test test;
    return QTest::qExec(&test, argc, argv);
}

/** Makes the class @p Test the test of its source file, which runs in an @p Application. */
#define ADD_TEST(Test, Application)                                                                \
    [[maybe_unused]] static const bool is##Test##Added =                                           \
        TestProgram::add(__FILE__, runTest<Test, Application>);
