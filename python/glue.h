// SPDX-License-Identifier: MIT
#pragma once

#include <autodecref.h>
#include <gilstate.h>
#include <sbkpython.h>

#include <QChar>
#include <QList>

#include <memory>

/**
 * The character that a string of one is, none for an empty one. PySide's own conversion takes the
 * first byte of the string's UTF-8, which the glyphs of an icon font do not survive.
 */
inline QChar olvGlyph(PyObject *text)
{
    const Py_ssize_t length = PyUnicode_GetLength(text); // -1, and a TypeError, for other types
    const Py_UCS4 character = length > 0 ? PyUnicode_ReadChar(text, 0) : 0;
    if (length > 1 || character > 0xffff) {
        PyErr_SetString(PyExc_ValueError, "a glyph is one character, of at most U+FFFF");
    }
    return QChar(character);
}

/** The characters in a sequence of strings. */
inline QList<QChar> olvGlyphs(PyObject *texts)
{
    QList<QChar> glyphs;
    const Py_ssize_t count = PySequence_Size(texts);
    for (Py_ssize_t i = 0; i < count && !PyErr_Occurred(); ++i) {
        Shiboken::AutoDecRef text(PySequence_GetItem(texts, i));
        if (!text.isNull()) {
            glyphs.append(olvGlyph(text));
        }
    }
    return glyphs;
}

/** A Python callable, for C++ code that may call it at any time and in any thread. */
class OlvPythonCallable
{
public:
    explicit OlvPythonCallable(PyObject *callable)
        : m_callable(callable, release)
    {
        Py_INCREF(callable);
    }

    /** Calls it with @p argument, if there is one; prints the traceback of what it raises. */
    void operator()(PyObject *argument = nullptr) const
    {
        const Shiboken::GilState gil;
        Shiboken::AutoDecRef result(
            PyObject_CallFunctionObjArgs(m_callable.get(), argument, nullptr));
        if (result.isNull()) {
            PyErr_Print();
        }
    }

private:
    static void release(PyObject *callable)
    {
        // C++ may drop it when the interpreter has gone
        if (Py_IsInitialized()) {
            const Shiboken::GilState gil;
            Py_DECREF(callable);
        }
    }

    std::shared_ptr<PyObject> m_callable;
};
