#include "platform/Forms.h"

#include "platform/RuntimeError.h"

#include <QHash>
#include <QPointer>

namespace {
struct Registry {
    QHash<QString, Forms::Factory> factories;
    QHash<QString, QWidget*> singles;  // name -> loaded single instance
    QList<QWidget*> collection;        // load order
};

Registry& reg()
{
    static Registry r;
    return r;
}

void forget(QWidget* w)
{
    reg().collection.removeAll(w);
    for (auto it = reg().singles.begin(); it != reg().singles.end();) {
        if (it.value() == w)
            it = reg().singles.erase(it);
        else
            ++it;
    }
}
}

bool Form::Unload()
{
    if (!QueryUnload())
        return false;
    auto* w = dynamic_cast<QWidget*>(this);
    if (!w)
        return true;
    Forms::remove(w);
    w->hide();
    w->deleteLater();
    return true;
}

namespace Forms {

void registerFactory(const QString& name, Factory factory)
{
    if (!reg().factories.contains(name))
        reg().factories.insert(name, std::move(factory));
}

QWidget* get(const QString& name)
{
    if (QWidget* w = reg().singles.value(name))
        return w;
    const auto factory = reg().factories.value(name);
    if (!factory)
        throw RuntimeError::objectRequired(name);
    QWidget* w = factory();
    w->setObjectName(name);
    reg().singles.insert(name, w);
    add(w);
    if (auto* f = dynamic_cast<Form*>(w))
        f->Form_Load();
    // Form_Load may have unloaded the window again (the settings reset does).
    return reg().singles.value(name);
}

QWidget* find(const QString& name) { return reg().singles.value(name); }
bool isLoaded(const QString& name) { return reg().singles.contains(name); }
bool hasFactory(const QString& name) { return reg().factories.contains(name); }

void add(QWidget* w)
{
    if (reg().collection.contains(w))
        return;
    reg().collection.append(w);
    QObject::connect(w, &QObject::destroyed, [w] { forget(w); });
}

void remove(QWidget* w) { forget(w); }
QList<QWidget*> loaded() { return reg().collection; }
int count() { return static_cast<int>(reg().collection.size()); }

bool unload(QWidget* w)
{
    if (auto* f = dynamic_cast<Form*>(w))
        return f->Unload();
    remove(w);
    w->hide();
    w->deleteLater();
    return true;
}

void destroyAllForTesting()
{
    const QList<QWidget*> all = reg().collection;
    QList<QPointer<QWidget>> guarded;
    for (QWidget* w : all)
        guarded.append(w);
    reg().collection.clear();
    reg().singles.clear();
    for (int i = guarded.size() - 1; i >= 0; --i)
        if (guarded[i] && !guarded[i]->parentWidget())
            delete guarded[i].data();
    for (auto& g : guarded)
        if (g)
            delete g.data();
}

} // namespace Forms
