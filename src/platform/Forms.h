#pragma once
#include <QList>
#include <QString>
#include <QWidget>
#include <functional>

// Every window of the program is a Form. Dialogs exist once: they are created on first touch
// (their Form_Load runs then), hidden rather than destroyed when the user closes them, and
// destroyed only by Unload. Document windows exist in several instances.
class Form {
public:
    virtual ~Form() = default;
    // Runs once, right after the window has joined the Forms collection.
    virtual void Form_Load() {}
    // Asks the window's question (if it has one), then removes it from the Forms collection
    // and destroys it. False when the window refused to go.
    virtual bool Unload();

protected:
    // The unload question; false cancels the unload.
    virtual bool QueryUnload() { return true; }
};

namespace Forms {
using Factory = std::function<QWidget*()>;

void registerFactory(const QString& name, Factory factory);
// The single default instance of a form by its name: created and loaded on first touch.
// A name nobody registered is a run-time error.
QWidget* get(const QString& name);
// The loaded instance, or null; never creates.
QWidget* find(const QString& name);
bool isLoaded(const QString& name);
// Whether a window of that name exists in this build (a factory was registered).
bool hasFactory(const QString& name);

// The Forms collection: every loaded window in load order, document windows included.
void add(QWidget* w);
void remove(QWidget* w);
QList<QWidget*> loaded();
int count();
bool unload(QWidget* w);

// Tests: destroy every form at once, asking nothing.
void destroyAllForTesting();
}

// The single default instance of F, created and loaded on first touch.
template <class F>
F* form()
{
    const QString name = QString::fromLatin1(F::staticMetaObject.className());
    if (QWidget* w = Forms::find(name))
        return static_cast<F*>(w);
    Forms::registerFactory(name, [] { return static_cast<QWidget*>(new F); });
    return static_cast<F*>(Forms::get(name));
}

// Registers F's single instance under its class name, which is the window's name.
template <class F>
void registerForm()
{
    Forms::registerFactory(QString::fromLatin1(F::staticMetaObject.className()),
                           [] { return static_cast<QWidget*>(new F); });
}

// F's loaded instance or null.
template <class F>
F* loadedForm()
{
    return static_cast<F*>(Forms::find(QString::fromLatin1(F::staticMetaObject.className())));
}
