// The Forms registry: single default instances, the Forms collection and unloading.
#include "common/TestSupport.h"

#include "platform/Forms.h"
#include "platform/RuntimeError.h"

#include <QPointer>
#include <QWidget>

// Test windows. They live outside any namespace so that their class names are plain.
class FormsTestDialog : public QWidget, public Form {
    Q_OBJECT
public:
    FormsTestDialog() { ++constructed; }
    void Form_Load() override
    {
        ++loads;
        nameAtLoad = objectName();
        inCollectionAtLoad = Forms::loaded().contains(this);
        // Code in a load routine that reaches its own window by name must get this instance.
        selfAtLoad = form<FormsTestDialog>();
    }
    static inline int constructed = 0;
    static inline int loads = 0;
    QString nameAtLoad;
    bool inCollectionAtLoad = false;
    FormsTestDialog* selfAtLoad = nullptr;
};

class FormsTestAsking : public QWidget, public Form {
    Q_OBJECT
public:
    bool refuse = false;
    int asked = 0;

protected:
    bool QueryUnload() override
    {
        ++asked;
        return !refuse;
    }
};

class FormsTestGoesAtLoad : public QWidget, public Form {
    Q_OBJECT
public:
    void Form_Load() override { Unload(); }
};

namespace {
class FormsTest : public WindowTest {
protected:
    FormsTest() : WindowTest(false) {}
    void SetUp() override
    {
        FormsTestDialog::constructed = 0;
        FormsTestDialog::loads = 0;
        ASSERT_EQ(Forms::count(), 0) << "a previous test left windows behind";
    }
    // A factory of plain widgets under a name unique to this test program.
    static void registerPlain(const QString& name)
    {
        Forms::registerFactory(name, [] { return new QWidget; });
    }
};
}

TEST_F(FormsTest, SingleInstanceIsCreatedAndLoadedOnceOnFirstTouch)
{
    EXPECT_FALSE(Forms::isLoaded(QStringLiteral("FormsTestDialog")));
    EXPECT_EQ(loadedForm<FormsTestDialog>(), nullptr);
    EXPECT_EQ(FormsTestDialog::constructed, 0) << "nothing exists before the first touch";

    FormsTestDialog* first = form<FormsTestDialog>();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(FormsTestDialog::constructed, 1);
    EXPECT_EQ(FormsTestDialog::loads, 1);
    EXPECT_EQ(first->objectName(), QStringLiteral("FormsTestDialog"));
    EXPECT_EQ(first->nameAtLoad, QStringLiteral("FormsTestDialog")) << "the name is set before the load runs";
    EXPECT_TRUE(first->inCollectionAtLoad) << "the load runs after the window joined the collection";
    EXPECT_EQ(first->selfAtLoad, first) << "touching the window from its own load must not make a second one";

    // Every later touch, by type or by name, gives the same window without loading it again.
    EXPECT_EQ(form<FormsTestDialog>(), first);
    EXPECT_EQ(Forms::get(QStringLiteral("FormsTestDialog")), first);
    EXPECT_EQ(Forms::find(QStringLiteral("FormsTestDialog")), first);
    EXPECT_EQ(loadedForm<FormsTestDialog>(), first);
    EXPECT_EQ(FormsTestDialog::constructed, 1);
    EXPECT_EQ(FormsTestDialog::loads, 1);
    EXPECT_EQ(Forms::count(), 1);
    EXPECT_TRUE(Forms::isLoaded(QStringLiteral("FormsTestDialog")));

    // Hiding is not unloading: the fields survive.
    first->show();
    first->hide();
    EXPECT_EQ(form<FormsTestDialog>(), first);
    EXPECT_EQ(FormsTestDialog::loads, 1);
}

TEST_F(FormsTest, UnknownNameIsObjectRequiredAndCreatesNothing)
{
    const QString name = QStringLiteral("NoSuchWindowAnywhere");
    EXPECT_FALSE(Forms::hasFactory(name));
    try {
        Forms::get(name);
        ADD_FAILURE() << "get of an unknown name answered";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number, 424);
    }
    EXPECT_EQ(Forms::find(name), nullptr);
    EXPECT_FALSE(Forms::isLoaded(name));
    EXPECT_EQ(Forms::count(), 0);
}

TEST_F(FormsTest, HasFactoryTellsWhatExistsWithoutLoadingIt)
{
    const QString name = QStringLiteral("FormsTestRegisteredOnly");
    EXPECT_FALSE(Forms::hasFactory(name));
    registerPlain(name);
    EXPECT_TRUE(Forms::hasFactory(name));
    EXPECT_FALSE(Forms::isLoaded(name)) << "registering is not loading";
    EXPECT_EQ(Forms::find(name), nullptr);
    EXPECT_EQ(Forms::count(), 0);
    EXPECT_FALSE(Forms::hasFactory(name.toLower())) << "names are exact";

    QWidget* w = Forms::get(name);
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->objectName(), name);
    EXPECT_EQ(Forms::count(), 1);
}

TEST_F(FormsTest, CollectionKeepsLoadOrderIncludingDocumentWindows)
{
    for (const char* n : {"FormsTestOrderA", "FormsTestOrderB", "FormsTestOrderC"})
        registerPlain(QString::fromLatin1(n));
    QWidget* b = Forms::get(QStringLiteral("FormsTestOrderB"));
    QWidget* a = Forms::get(QStringLiteral("FormsTestOrderA"));
    // Document windows have several instances and join the collection themselves.
    auto* doc1 = new QWidget;
    Forms::add(doc1);
    QWidget* c = Forms::get(QStringLiteral("FormsTestOrderC"));
    auto* doc2 = new QWidget;
    Forms::add(doc2);

    EXPECT_EQ(Forms::loaded(), (QList<QWidget*>{b, a, doc1, c, doc2}));
    EXPECT_EQ(Forms::count(), 5);

    // Touching or adding again does not move or duplicate anything.
    Forms::get(QStringLiteral("FormsTestOrderB"));
    Forms::add(doc1);
    EXPECT_EQ(Forms::loaded(), (QList<QWidget*>{b, a, doc1, c, doc2}));

    // A document window is not a single instance: it cannot be found by a name.
    doc1->setObjectName(QStringLiteral("FormsTestDocument"));
    EXPECT_EQ(Forms::find(QStringLiteral("FormsTestDocument")), nullptr);
}

TEST_F(FormsTest, UnloadRemovesAndDestroysAndNextTouchLoadsAfresh)
{
    QPointer<FormsTestDialog> first = form<FormsTestDialog>();
    first->show();
    ASSERT_TRUE(Forms::unload(first));
    EXPECT_FALSE(Forms::loaded().contains(first.data()));
    EXPECT_EQ(Forms::find(QStringLiteral("FormsTestDialog")), nullptr);
    EXPECT_FALSE(Forms::isLoaded(QStringLiteral("FormsTestDialog")));
    EXPECT_EQ(Forms::count(), 0);
    EXPECT_TRUE(first.isNull() || first->isHidden()) << "an unloaded window does not stay on screen";
    processEvents();
    EXPECT_TRUE(first.isNull()) << "unload destroys the window";

    FormsTestDialog* second = form<FormsTestDialog>();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(FormsTestDialog::constructed, 2);
    EXPECT_EQ(FormsTestDialog::loads, 2) << "a window loaded again runs its load again";
    EXPECT_EQ(Forms::count(), 1);
}

TEST_F(FormsTest, UnloadOfPlainWidgetAndThroughTheFormItself)
{
    registerPlain(QStringLiteral("FormsTestPlain"));
    QPointer<QWidget> plain = Forms::get(QStringLiteral("FormsTestPlain"));
    QPointer<FormsTestAsking> asking = form<FormsTestAsking>();
    ASSERT_EQ(Forms::count(), 2);

    EXPECT_TRUE(Forms::unload(plain));
    EXPECT_EQ(Forms::loaded(), (QList<QWidget*>{asking.data()}));
    EXPECT_FALSE(Forms::isLoaded(QStringLiteral("FormsTestPlain")));

    EXPECT_TRUE(asking->Unload());
    EXPECT_EQ(asking->asked, 1) << "the unload question is asked once";
    EXPECT_EQ(Forms::count(), 0);
    EXPECT_FALSE(Forms::isLoaded(QStringLiteral("FormsTestAsking")));
    processEvents();
    EXPECT_TRUE(plain.isNull());
    EXPECT_TRUE(asking.isNull());
}

TEST_F(FormsTest, RefusedUnloadKeepsTheWindow)
{
    QPointer<FormsTestAsking> w = form<FormsTestAsking>();
    w->refuse = true;
    w->show();

    EXPECT_FALSE(Forms::unload(w));
    EXPECT_EQ(w->asked, 1);
    EXPECT_FALSE(w->Unload());
    EXPECT_EQ(w->asked, 2);
    processEvents();
    ASSERT_FALSE(w.isNull()) << "a refused unload destroys nothing";
    EXPECT_TRUE(w->isVisible()) << "a refused unload does not hide the window";
    EXPECT_EQ(Forms::loaded(), (QList<QWidget*>{w.data()}));
    EXPECT_EQ(form<FormsTestAsking>(), w.data());

    // Once the window agrees, it goes.
    w->refuse = false;
    EXPECT_TRUE(Forms::unload(w));
    EXPECT_EQ(Forms::count(), 0);
}

TEST_F(FormsTest, DestroyedWindowsLeaveTheCollection)
{
    registerPlain(QStringLiteral("FormsTestDestroyed"));
    QWidget* single = Forms::get(QStringLiteral("FormsTestDestroyed"));
    auto* doc = new QWidget;
    Forms::add(doc);
    FormsTestDialog* dialog = form<FormsTestDialog>();
    ASSERT_EQ(Forms::count(), 3);

    delete doc;
    EXPECT_EQ(Forms::loaded(), (QList<QWidget*>{single, dialog}));

    delete single;
    EXPECT_EQ(Forms::loaded(), (QList<QWidget*>{dialog}));
    EXPECT_EQ(Forms::find(QStringLiteral("FormsTestDestroyed")), nullptr);
    EXPECT_FALSE(Forms::isLoaded(QStringLiteral("FormsTestDestroyed")));

    // The name gives a fresh window again rather than the dead one.
    QWidget* again = Forms::get(QStringLiteral("FormsTestDestroyed"));
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(Forms::loaded(), (QList<QWidget*>{dialog, again}));

    // deleteLater, as a window closing itself does, has the same effect once it runs.
    dialog->deleteLater();
    processEvents();
    EXPECT_EQ(Forms::loaded(), (QList<QWidget*>{again}));
    EXPECT_EQ(loadedForm<FormsTestDialog>(), nullptr);
}

TEST_F(FormsTest, WindowThatUnloadsItselfDuringLoadIsNotHandedOut)
{
    EXPECT_EQ(form<FormsTestGoesAtLoad>(), nullptr);
    EXPECT_FALSE(Forms::isLoaded(QStringLiteral("FormsTestGoesAtLoad")));
    EXPECT_EQ(Forms::count(), 0);
    processEvents();
}

TEST_F(FormsTest, DestroyAllEmptiesTheCollection)
{
    QPointer<FormsTestDialog> dialog = form<FormsTestDialog>();
    auto* doc = new QWidget;
    QPointer<QWidget> guard = doc;
    Forms::add(doc);
    Forms::destroyAllForTesting();
    EXPECT_EQ(Forms::count(), 0);
    EXPECT_TRUE(dialog.isNull());
    EXPECT_TRUE(guard.isNull());
    EXPECT_EQ(loadedForm<FormsTestDialog>(), nullptr);
}

#include "FormsTest.moc"
