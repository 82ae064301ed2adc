// The compiled-in reference trees and character table, checked against the lists as they are
// written out below (one line per branch: its key, then its children in order; a child's key
// in brackets where it differs from the caption; "(branch)" and "(link)" mark the kinds).
#include "reference/ReferenceData.h"

#include <QSet>
#include <algorithm>
#include <QStringList>
#include <QUrl>
#include <gtest/gtest.h>

using namespace ReferenceData;

namespace {

struct Expected {
    QString parent, key, caption;
    int image = 3;
    int selectedImage = 0;
    bool link = false;
};

// Parses the branch lines into the nodes in the order they are added.
QList<Expected> parse(const QString& rootKey, const QString& rootCaption, const char* lines)
{
    QList<Expected> out{{QString(), rootKey, rootCaption, 2, 6}};
    for (const QString& line : QString::fromUtf8(lines).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const qsizetype colon = line.indexOf(QStringLiteral(": "));
        const QString parent = line.left(colon);
        for (QString child : line.mid(colon + 2).split(QStringLiteral("; "))) {
            Expected e;
            e.parent = parent;
            if (child.endsWith(QStringLiteral(" (branch)"))) {
                child.chop(9);
                e.image = 2;
                e.selectedImage = 6;
            } else if (child.endsWith(QStringLiteral(" (link)"))) {
                child.chop(7);
                e.image = 4;
                e.link = true;
            }
            if (child.endsWith(QLatin1Char(']'))) {
                const qsizetype open = child.lastIndexOf(QStringLiteral(" ["));
                e.key = child.mid(open + 2, child.size() - open - 3);
                child = child.left(open);
            } else {
                e.key = child;
            }
            e.caption = child;
            out << e;
        }
    }
    return out;
}

const char* const referenceLines = R"(root: HTML Reference [child1_root] (branch); CSS Reference [child1_CSS] (branch); ASP Reference (branch)
child1_root: <Text> [child1_root1] (branch); <Document Structure> [child2_root1] (branch); <Links> [child4_root1] (branch); <Frames> [child5_root1] (branch); <Script> [child6_root1] (branch); WebSite's [child8_root1] (branch)
child1_root1: <p> [child1_child0]; align= [child1_child1]; font= [child1_child2]; color= [child1_child3]; size= [child1_child4]; <B> [child1_child5]; <I> [child1_child6]; </p> [child1_child7]
child2_root1: <html> [child2_child0]; <head> [child2_child1]; </head> [child2_child2]; <SPAN></SPAN> [child2_child3]; <Title></Title> [child2_child4]; <meta> [child2_child5]; <body> [child3_root1] (branch); </body> [child2_child6]; </html> [child2_child7]
child3_root1: onload= [child3_child1]; bgcolor= [child3_child2]; link= [child3_child3]; text= [child3_child4]
child4_root1: <A></A> [child4_child0]; name= [child4_child1]; target= [child4_child2]; href= [child4_child3]; coords= [child4_child4]
child5_root1: Frameborder= [child5_child0]; Marginheight= [child5_child1]; Marginwidth= [child5_child2]; Name= [child5_child3]; Noresize [child5_child4]; Scrolling= [child5_child5]; Scr= [child5_child6]; <FRAMESET></FRAMESET> [child5_child7]; <IFRAME></IFRAME> [child5_child8]; <NOFRAMES></NOFRAMES> [child5_child9]
child6_root1: <NOSCRIPT></NOSCRIPT> [child6_child0]; <SCRIPT></SCRIPT> [child7_root1] (branch)
child7_root1: Language="" [child7_child0]; type="" [child7_child1]; src="" [child7_child2]
child8_root1: Dynamic Drive (link); DeveloperFusion (link)
child1_CSS: Font + Text properties (branch); Color + background properties (branch); Layout properties (branch); WebSite's [css websites] (branch)
Font + Text properties: Direction [child1_CSS0] (branch); Font (branch); font-variant; font-weight (branch); font-size=; line-height; font-family; caption; icon; menu; message-box; small-caption; status-bar [statusbar]; Layout-grid (branch); letter-spacing (branch); line-breaking (branch); line-height [line-height1] (branch); text-decoration (branch); text-transform (branch)
child1_CSS0: All; Horizontal; Vertical
Font: font-style (branch)
font-style: normal; italic; oblique
font-weight: normal [normal1]; bold [bold1]; bolder [bolder1]; lighter [lighter1]
Layout-grid: mode; type; line; chr
letter-spacing: normal [normal3]; length
line-breaking: normal [normal4]; strict
line-height1: normal [normal5]; height; percentage
text-decoration: none; underline; overline; line-through; blink
text-transform: none [none1]; capitalize; uppercase; lowercase
Color + background properties: background (branch)
background: color; image; repeat; attachment; position
Layout properties: border (branch); border-bottom-color (branch); border-collapse (branch); clear (branch); float (branch); margin (branch)
border: width; style (branch)
style: none [none2]; dotted; dashed; solid; double; groove; ridge; inset; window-inset; outset
border-bottom-color: variant
border-collapse: seperate; collapse
clear: none [none3]; left; right; both
float: none [none4]; left [left1]; right [right1]
margin: top; right [right2]; bottom; left [left2]
css websites: style sheet test pages (link); MSDN Online Reference (link)
ASP Reference: Built in Objects (branch); Website's [Website's2] (branch)
Built in Objects: Application (branch); ASPError (branch); ObjectContext (branch); Request (branch); Response (branch); Server (branch); Session (branch)
Application: collection properties (branch); methods (branch); events (branch)
collection properties: contents; Static objects
methods: contents.remove; contents.removeall; lock; unlock
events: onstart; onend
ASPError: Server.GetLastError; properties (branch)
properties: ASPCode; ASPDescription; Category; Description; File; Line; Number; Source
ObjectContext: @Transaction; methods [methods1] (branch); events [events1] (branch)
methods1: SetAbort; SetComplete
events1: OnTransactionAbort; OnTransactionCommit
Request: Request(variable); property (branch); collection properties [collection properties1] (branch); Method [Method2] (branch)
property: TotalBytes
collection properties1: ClientCertificate; Cookies; Form; QueryString; ServerVariables
Method2: BinaryRead
Response: Properties (branch); collection properties [collection properties2] (branch); methods [methods2] (branch)
Properties: Buffer; CacheControl; Charset; Contenttype; Expires; ExpiresAbsolute; IsClientConnected; PICS; Status
collection properties2: Cookies [Cookies1]
methods2: AddHeader Name; AppendToLog; BinaryWrite; Clear; End; Flush; Redirect(URL); Write(variant)
Server: property [property3] (branch); method [method3] (branch)
property3: ScriptTimeout
method3: CreatObject(ObjectID); Execute(Path); GetLastError; HTMLEncode(string); MapPath(Path); Transfer(Path); URLEncode(String)
Session: properties [properties3] (branch); Collection properties (branch); methods [methods3] (branch); events [events2] (branch)
properties3: CodePage; SessionID; LCID; Timeout
Collection properties: Contents; StaticObjects
methods3: Abandon; Contents.Remove; Contents.RemoveAll
events2: OnEnd; OnStart
Website's2: address (link); address (link)
)";

const char* const sidebarLines = R"(root: <HTML CODE> [child1_root] (branch); <ASP CODE> [child3_root3] (branch)
child1_root: <Text> [child1_root1] (branch); <Document Structure> [child2_root1] (branch); <Links> [child4_root1] (branch); <Frames> [child5_root1] (branch); <Script> [child6_root1] (branch)
child1_root1: <p> [child1_child0]; align= [child1_child1]; font= [child1_child2]; color= [child1_child3]; size= [child1_child4]; <B> [child1_child5]; <I> [child1_child6]; </p> [child1_child7]
child2_root1: <HTML [child2_child0]; <HEAD> [child2_child1]; </HEAD> [child2_child2]; <SPAN></SPAN> [child2_child3]; <Title></Title> [child2_child4]; <meta> [child2_child5]; <Body> [child3_root1] (branch); </Body> [child2_child6]; </HTML> [child2_child7]
child3_root1: onload= [child3_child1]; bgcolor= [child3_child2]; link= [child3_child3]; text= [child3_child4]
child4_root1: <A></A> [child4_child0]; name= [child4_child1]; target= [child4_child2]; href= [child4_child3]; coords= [child4_child4]
child5_root1: Frameborder= [child5_child0]; Marginheight= [child5_child1]; Marginwidth= [child5_child2]; Name= [child5_child3]; Noresize [child5_child4]; Scrolling= [child5_child5]; Scr= [child5_child6]; <FRAMESET></FRAMESET> [child5_child7]; <IFRAME></IFRAME> [child5_child8]; <NOFRAMES></NOFRAMES> [child5_child9]
child6_root1: <NOSCRIPT></NOSCRIPT> [child6_child0]; <SCRIPT></SCRIPT> [child7_root1] (branch)
child7_root1: Language="" [child7_child0]; type="" [child7_child1]; src="" [child7_child2]
child3_root3: Coming Soon [child3_child0]
)";

const QStringList scriptLeaves = {
    "Link 1 .css", "Link Several Pages", "Age Verification", "Auto Page Redirection", "Computer Data",
    "Digital Clock", "Flashing Links", "Page Reload", "Drop Down Menu", "Roll Over Link Affect", "View Source",
    "Stop Right Click", "Enter Page Question", "Full Screen", "New Sized Window", "Infect Computer Joke",
    "Fade In and Out Scroller", "Roll Up Hyperlink Menu", "Mouse Over Hyperlink", "Email Link Refer",
    "Alert Button", "Button Mania", "Color Cube", "Continuous Fader", "Javascript Tab Control",
    "Advanced Calendar", "Advanced Editor", "Airport Calculator", "Count Down", "Daily Tip", "Information Box",
    "Simple Calendar", "Stock Calculator"};
const QStringList advancedLeaves = {"Microsoft Excel", "News Headlines From MSNBC", "Sports Headlines At MSNBC"};

// Compares a tree node by node; web links are compared by caption only where the caption is
// given, as their addresses are this program's choice.
void expectTree(const QList<Node>& actual, const QList<Expected>& expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const Node& a = actual[i];
        const Expected& e = expected[i];
        SCOPED_TRACE("node " + std::to_string(i) + " " + e.caption.toStdString());
        EXPECT_EQ(a.parent, e.parent);
        EXPECT_EQ(a.image, e.image);
        EXPECT_EQ(a.selectedImage, e.selectedImage);
        if (e.link)
            continue;
        EXPECT_EQ(a.key, e.key);
        EXPECT_EQ(a.caption, e.caption);
    }
}

QStringList expandedKeys(const QList<Node>& tree)
{
    QStringList keys;
    for (const Node& n : tree)
        if (n.expanded)
            keys << n.key;
    return keys;
}

}  // namespace

TEST(ReferenceTree, HoldsTheListedNodesInOrderWithTheirParentsKeysAndImages)
{
    const QList<Expected> expected = parse(QStringLiteral("root"), QStringLiteral("Reference Library"), referenceLines);
    EXPECT_EQ(expected.size(), 243);
    EXPECT_EQ(referenceTree().size(), 243);
    expectTree(referenceTree(), expected);
}

TEST(ReferenceTree, KeysAreUniqueAndEveryParentComesFirst)
{
    for (const QList<Node>* tree : {&referenceTree(), &scriptList(), &sidebarTree()}) {
        QSet<QString> seen;
        for (const Node& n : *tree) {
            EXPECT_TRUE(n.parent.isEmpty() || seen.contains(n.parent)) << n.key.toStdString();
            EXPECT_FALSE(seen.contains(n.key)) << "duplicate key " << n.key.toStdString();
            seen.insert(n.key);
        }
        EXPECT_EQ(std::count_if(tree->begin(), tree->end(), [](const Node& n) { return n.parent.isEmpty(); }), 1);
    }
}

TEST(ReferenceTree, TheFirstBranchOfEachPartIsOpen)
{
    EXPECT_EQ(expandedKeys(referenceTree()),
              (QStringList{"child1_root1", "Font + Text properties", "Built in Objects"}));
    EXPECT_EQ(expandedKeys(scriptList()), QStringList{"root"});
}

TEST(ReferenceTree, SixWebLinksWithAddressesAsKeys)
{
    QList<const Node*> links;
    for (const Node& n : referenceTree())
        if (n.image == 4)
            links << &n;
    ASSERT_EQ(links.size(), 6);
    const QStringList parents = {"child8_root1", "child8_root1", "css websites", "css websites", "Website's2", "Website's2"};
    int capitalSchemes = 0;
    for (int i = 0; i < 6; ++i) {
        const Node& n = *links[i];
        EXPECT_EQ(n.parent, parents[i]);
        EXPECT_TRUE(n.isWebLink());
        const QUrl url(n.key, QUrl::StrictMode);
        EXPECT_TRUE(url.isValid()) << n.key.toStdString();
        EXPECT_EQ(url.scheme().toLower(), QStringLiteral("http")) << n.key.toStdString();
        EXPECT_FALSE(url.host().isEmpty()) << n.key.toStdString();
        if (n.key.startsWith(QStringLiteral("HTTP://")))
            ++capitalSchemes;
    }
    EXPECT_EQ(capitalSchemes, 4);
    EXPECT_EQ(links[0]->caption, QStringLiteral("Dynamic Drive"));
    EXPECT_EQ(links[1]->caption, QStringLiteral("DeveloperFusion"));
    EXPECT_EQ(links[3]->caption, QStringLiteral("MSDN Online Reference"));
    // The server pages' two show their address as the caption too.
    EXPECT_EQ(links[4]->caption, links[4]->key);
    EXPECT_EQ(links[5]->caption, links[5]->key);
    EXPECT_NE(links[4]->key, links[5]->key);
}

// Every key and caption is compared above; here the look-up itself: keys only, exactly.
TEST(ReferenceTree, FindNodeMatchesKeysExactly)
{
    const QList<Node>& tree = referenceTree();
    ASSERT_NE(findNode(tree, QStringLiteral("Properties")), nullptr);
    ASSERT_NE(findNode(tree, QStringLiteral("properties")), nullptr);
    EXPECT_EQ(findNode(tree, QStringLiteral("Properties"))->parent, QStringLiteral("Response"));
    EXPECT_EQ(findNode(tree, QStringLiteral("properties"))->parent, QStringLiteral("ASPError"));
    EXPECT_EQ(findNode(tree, QStringLiteral("PROPERTIES")), nullptr);
    EXPECT_EQ(findNode(tree, QStringLiteral("status-bar")), nullptr) << "a caption is no key";
    EXPECT_EQ(findNode(tree, QStringLiteral("normal2")), nullptr);
}

TEST(SidebarTree, IsTheShortTreeWithItsOwnCaptions)
{
    const QList<Expected> expected = parse(QStringLiteral("root"), QStringLiteral("<<CODE>>"), sidebarLines);
    EXPECT_EQ(sidebarTree().size(), 50);
    expectTree(sidebarTree(), expected);
    // No style sheet part and no web links.
    EXPECT_EQ(findNode(sidebarTree(), QStringLiteral("child1_CSS")), nullptr);
    for (const Node& n : sidebarTree())
        EXPECT_NE(n.image, 4) << n.key.toStdString();
    EXPECT_TRUE(expandedKeys(sidebarTree()).isEmpty());
}

TEST(ScriptList, RootThirtyThreeScriptsAndTheAdvancedGroup)
{
    const QList<Node>& list = scriptList();
    ASSERT_EQ(list.size(), 38);
    EXPECT_EQ(list[0].key, QStringLiteral("root"));
    EXPECT_EQ(list[0].caption, QStringLiteral("Available Javascripts"));
    EXPECT_EQ(list[0].image, 2);
    EXPECT_EQ(list[0].selectedImage, 6);
    for (int i = 0; i < 33; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(list[1 + i].parent, QStringLiteral("root"));
        EXPECT_EQ(list[1 + i].caption, scriptLeaves[i]);
        EXPECT_EQ(list[1 + i].key, scriptLeaves[i]);
        EXPECT_EQ(list[1 + i].image, 7);
        EXPECT_EQ(list[1 + i].selectedImage, 0);
    }
    EXPECT_EQ(list[34].caption, QStringLiteral("Advanced Script's"));
    EXPECT_EQ(list[34].parent, QStringLiteral("root"));
    EXPECT_EQ(list[34].image, 2);
    EXPECT_EQ(list[34].selectedImage, 6);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(list[35 + i].parent, list[34].key);
        EXPECT_EQ(list[35 + i].key, advancedLeaves[i]);
        EXPECT_EQ(list[35 + i].caption, advancedLeaves[i]);
        EXPECT_EQ(list[35 + i].image, 7);
    }
    EXPECT_EQ(scriptPageKeys(), scriptLeaves + advancedLeaves);
    EXPECT_EQ(scriptPageRelativePath(QStringLiteral("Digital Clock")), QStringLiteral("Templates/Javascript/Digital Clock.htm"));
    EXPECT_EQ(scriptPageRelativePath(QStringLiteral("Link 1 .css")), QStringLiteral("Templates/Javascript/Link 1 .css.htm"));
}

TEST(CharacterTable, ThirtyRowsAsListed)
{
    struct Row { const char* character; const char* name; const char* code; };
    const Row rows[] = {
        {"\"", "Quotes", "&quot;"}, {"&", "Ampersand", "&amp;"}, {"<", "Less Than", "&lt;"},
        {">", "More Than", "&gt;"}, {"", "Space", "&nbsp;"}, {"£", "Pound", "&pound;"},
        {"'", "acute accent", "&acute;"}, {"¦", "Broken Vertical line", "&brvbar;"}, {"¶", "Paragraph", "&para;"},
        {"¼", "Fraction", "&frac14;"}, {"½", "Fraction", "&frac12;"}, {"¾", "Fraction", "&frac34;"},
        {"⅛", "Fraction", "&#8539;"}, {"⅜", "Fraction", "&#8540;"}, {"⅝", "Fraction", "&#8541;"},
        {"⅞", "Fraction", "&#8542;"}, {"€", "Euro", "€"}, {"™", "Trade Mark", "&trade;"},
        {"©", "Copy Right", "&copy;"}, {"«", "Left Angle Quote", "&laquo;"}, {"¬", "Not Sign", "&not;"},
        {"®", "Reg Tradmark", "&reg;"}, {"¥", "Yen Sign", "&yen;"}, {"§", "Section Sign", "&sec;"},
        {"¨", "Umlaut", "&uml;"}, {"°", "Degree Sign", "&deg;"}, {"µ", "Micro Sign", "&micro;"},
        {"¿", "I Question Mark", "&iquest;"}, {"²", "Superscript 2", "&sup2;"}, {"³", "Superscript 3", "&sup3;"},
    };
    const QList<CharacterRow>& table = characterTable();
    ASSERT_EQ(table.size(), 30);
    for (int i = 0; i < 30; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(table[i].character, QString::fromUtf8(rows[i].character));
        EXPECT_EQ(table[i].name, QString::fromUtf8(rows[i].name));
        EXPECT_EQ(table[i].code, QString::fromUtf8(rows[i].code));
    }
    EXPECT_EQ(characterColumnTwips[0], 550);
    EXPECT_EQ(characterColumnTwips[1], 2000);
    EXPECT_EQ(characterCodeColumn, 2);
}
