#pragma once

#include "uxQt4ExtGlobal.h"

#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>

class QUxIntVectorControlPrivate;

/**
 * Common part of the integer vector editors: one integer editor per
 * component (an integer slider or a spin box, chosen by the subclass), one
 * row each with an optional sub-label, and one change signal for the whole
 * vector. The typed interface comes from QUxIntVectorControlT.
 */
class UXQT4EXT_EXPORT QUxIntVectorControl : public QWidget
{
    Q_OBJECT
public:
    ~QUxIntVectorControl() override;

    int componentCount() const;
    /// The editor of component @p axis, or null for another axis.
    QWidget* editor(int axis) const;
    /// True when every component has its editor.
    bool isValid() const;
    /// One label text per component; a component with an empty text shows no label.
    void setSubLabels(const QStringList& labels);
    QStringList subLabels() const;

protected:
    QUxIntVectorControl(int components, QWidget* parent);

    // Building steps shared by the slider and the spin box members, whose
    // init() runs them around their own editor steps.
    /// Adds one editor per component, each made by @p make.
    void createEditors(const std::function<QWidget*()>& make);
    void createLabels();
    void createLayout();

    virtual int editorValue(const QWidget* editor) const = 0;
    virtual void setEditorValue(QWidget* editor, int value) = 0;
    virtual void setEditorMinimum(QWidget* editor, int value) = 0;
    virtual void setEditorMaximum(QWidget* editor, int value) = 0;
    virtual void setEditorStep(QWidget* editor, int value) = 0;
    /// Emits the typed change signal with the whole vector.
    virtual void emitChanged() = 0;

    int componentValue(int axis) const;
    void setComponentValues(const int* values);
    /// Runs @p change on every editor with its signals blocked.
    void changeEach(const std::function<void(QWidget* editor, int axis)>& change);
    /// Reports the vector when a component edit changed it.
    void componentEdited();

private:
    std::unique_ptr<QUxIntVectorControlPrivate> const d;
};

/// The typed interface of an integer vector editor with @p N components.
template<typename Base, typename IntVector, int N>
class QUxIntVectorControlT : public Base
{
public:
    void setValue(const IntVector& v)
    {
        int values[N];
        for (int i = 0; i < N; ++i)
            values[i] = v[size_t(i)];
        this->setComponentValues(values);
    }
    IntVector value() const
    {
        IntVector v;
        for (int i = 0; i < N; ++i)
            v[size_t(i)] = this->componentValue(i);
        return v;
    }
    void setMinimum(const IntVector& v)
    {
        this->changeEach([&](QWidget* e, int axis) { this->setEditorMinimum(e, v[size_t(axis)]); });
    }
    void setMaximum(const IntVector& v)
    {
        this->changeEach([&](QWidget* e, int axis) { this->setEditorMaximum(e, v[size_t(axis)]); });
    }
    void setStep(const IntVector& v)
    {
        this->changeEach([&](QWidget* e, int axis) { this->setEditorStep(e, v[size_t(axis)]); });
    }

protected:
    explicit QUxIntVectorControlT(QWidget* parent) : Base(N, parent) {}
};
