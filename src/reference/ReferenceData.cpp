#include "reference/ReferenceData.h"

#include <QStringList>
#include <initializer_list>

namespace ReferenceData {
namespace {

enum class Kind { Leaf, Branch, Link, Script };

// One child as the tables below give it: caption, the key where it differs from the caption,
// and what it is.
struct Child {
    const char* caption;
    const char* key = nullptr;
    Kind kind = Kind::Leaf;
};

constexpr Kind B = Kind::Branch;
constexpr Kind W = Kind::Link;
constexpr Kind S = Kind::Script;

class TreeBuilder {
public:
    void root(const char* key, const char* caption)
    {
        nodes.append({QString(), QString::fromUtf8(key), QString::fromUtf8(caption), BranchImage, BranchSelectedImage, false});
    }
    // The children of one branch, each added as its last child.
    void children(const char* parent, std::initializer_list<Child> list)
    {
        for (const Child& c : list) {
            Node n;
            n.parent = QString::fromUtf8(parent);
            n.caption = QString::fromUtf8(c.caption);
            n.key = c.key ? QString::fromUtf8(c.key) : n.caption;
            switch (c.kind) {
            case Kind::Branch: n.image = BranchImage; n.selectedImage = BranchSelectedImage; break;
            case Kind::Link: n.image = WebLinkImage; break;
            case Kind::Script: n.image = ScriptImage; break;
            case Kind::Leaf: n.image = LeafImage; break;
            }
            nodes.append(n);
        }
    }
    void expand(const char* key)
    {
        for (Node& n : nodes)
            if (n.key == QLatin1String(key))
                n.expanded = true;
    }
    QList<Node> nodes;
};

// The HTML part is the same in the main tree and the sidebar but for the captions of the
// document tags; the sidebar writes them in capitals (and "<HTML" without its bracket).
struct DocumentTags {
    const char* html;
    const char* head;
    const char* headEnd;
    const char* body;
    const char* bodyEnd;
    const char* htmlEnd;
};

void htmlPart(TreeBuilder& t, const DocumentTags& tags)
{
    t.children("child1_root1", {{"<p>", "child1_child0"}, {"align=", "child1_child1"}, {"font=", "child1_child2"},
                                {"color=", "child1_child3"}, {"size=", "child1_child4"}, {"<B>", "child1_child5"},
                                {"<I>", "child1_child6"}, {"</p>", "child1_child7"}});
    t.children("child2_root1", {{tags.html, "child2_child0"}, {tags.head, "child2_child1"}, {tags.headEnd, "child2_child2"},
                                {"<SPAN></SPAN>", "child2_child3"}, {"<Title></Title>", "child2_child4"},
                                {"<meta>", "child2_child5"}, {tags.body, "child3_root1", B},
                                {tags.bodyEnd, "child2_child6"}, {tags.htmlEnd, "child2_child7"}});
    // The body section starts at 1: there is no child3_child0 in this part.
    t.children("child3_root1", {{"onload=", "child3_child1"}, {"bgcolor=", "child3_child2"}, {"link=", "child3_child3"},
                                {"text=", "child3_child4"}});
    t.children("child4_root1", {{"<A></A>", "child4_child0"}, {"name=", "child4_child1"}, {"target=", "child4_child2"},
                                {"href=", "child4_child3"}, {"coords=", "child4_child4"}});
    t.children("child5_root1", {{"Frameborder=", "child5_child0"}, {"Marginheight=", "child5_child1"},
                                {"Marginwidth=", "child5_child2"}, {"Name=", "child5_child3"}, {"Noresize", "child5_child4"},
                                {"Scrolling=", "child5_child5"}, {"Scr=", "child5_child6"},
                                {"<FRAMESET></FRAMESET>", "child5_child7"}, {"<IFRAME></IFRAME>", "child5_child8"},
                                {"<NOFRAMES></NOFRAMES>", "child5_child9"}});
    t.children("child6_root1", {{"<NOSCRIPT></NOSCRIPT>", "child6_child0"}, {"<SCRIPT></SCRIPT>", "child7_root1", B}});
    t.children("child7_root1", {{"Language=\"\"", "child7_child0"}, {"type=\"\"", "child7_child1"}, {"src=\"\"", "child7_child2"}});
}

QList<Node> buildReferenceTree()
{
    TreeBuilder t;
    t.root("root", "Reference Library");
    t.children("root", {{"HTML Reference", "child1_root", B}, {"CSS Reference", "child1_CSS", B}, {"ASP Reference", nullptr, B}});
    t.children("child1_root", {{"<Text>", "child1_root1", B}, {"<Document Structure>", "child2_root1", B},
                               {"<Links>", "child4_root1", B}, {"<Frames>", "child5_root1", B},
                               {"<Script>", "child6_root1", B}, {"WebSite's", "child8_root1", B}});
    htmlPart(t, {"<html>", "<head>", "</head>", "<body>", "</body>", "</html>"});
    t.children("child8_root1", {{"Dynamic Drive", "HTTP://www.dynamicdrive.com/", W},
                                {"DeveloperFusion", "HTTP://www.developerfusion.com/", W}});

    // Style sheets. From here on a key is the caption, numbered where the caption repeats.
    t.children("child1_CSS", {{"Font + Text properties", nullptr, B}, {"Color + background properties", nullptr, B},
                              {"Layout properties", nullptr, B}, {"WebSite's", "css websites", B}});
    t.children("Font + Text properties",
               {{"Direction", "child1_CSS0", B}, {"Font", nullptr, B}, {"font-variant"}, {"font-weight", nullptr, B},
                {"font-size="}, {"line-height"}, {"font-family"}, {"caption"}, {"icon"}, {"menu"}, {"message-box"},
                {"small-caption"}, {"status-bar", "statusbar"}, {"Layout-grid", nullptr, B},
                {"letter-spacing", nullptr, B}, {"line-breaking", nullptr, B}, {"line-height", "line-height1", B},
                {"text-decoration", nullptr, B}, {"text-transform", nullptr, B}});
    t.children("child1_CSS0", {{"All"}, {"Horizontal"}, {"Vertical"}});
    t.children("Font", {{"font-style", nullptr, B}});
    t.children("font-style", {{"normal"}, {"italic"}, {"oblique"}});
    // The numbers were given by hand: there is no normal2.
    t.children("font-weight", {{"normal", "normal1"}, {"bold", "bold1"}, {"bolder", "bolder1"}, {"lighter", "lighter1"}});
    t.children("Layout-grid", {{"mode"}, {"type"}, {"line"}, {"chr"}});
    t.children("letter-spacing", {{"normal", "normal3"}, {"length"}});
    t.children("line-breaking", {{"normal", "normal4"}, {"strict"}});
    t.children("line-height1", {{"normal", "normal5"}, {"height"}, {"percentage"}});
    t.children("text-decoration", {{"none"}, {"underline"}, {"overline"}, {"line-through"}, {"blink"}});
    t.children("text-transform", {{"none", "none1"}, {"capitalize"}, {"uppercase"}, {"lowercase"}});
    t.children("Color + background properties", {{"background", nullptr, B}});
    t.children("background", {{"color"}, {"image"}, {"repeat"}, {"attachment"}, {"position"}});
    t.children("Layout properties", {{"border", nullptr, B}, {"border-bottom-color", nullptr, B},
                                     {"border-collapse", nullptr, B}, {"clear", nullptr, B}, {"float", nullptr, B},
                                     {"margin", nullptr, B}});
    t.children("border", {{"width"}, {"style", nullptr, B}});
    t.children("style", {{"none", "none2"}, {"dotted"}, {"dashed"}, {"solid"}, {"double"}, {"groove"}, {"ridge"},
                         {"inset"}, {"window-inset"}, {"outset"}});
    t.children("border-bottom-color", {{"variant"}});
    t.children("border-collapse", {{"seperate"}, {"collapse"}});
    t.children("clear", {{"none", "none3"}, {"left"}, {"right"}, {"both"}});
    t.children("float", {{"none", "none4"}, {"left", "left1"}, {"right", "right1"}});
    t.children("margin", {{"top"}, {"right", "right2"}, {"bottom"}, {"left", "left2"}});
    t.children("css websites", {{"CSS Test Suites", "HTTP://www.w3.org/Style/CSS/Test/", W},
                                {"MSDN Online Reference", "HTTP://msdn.microsoft.com/library/", W}});

    // Server pages.
    t.children("ASP Reference", {{"Built in Objects", nullptr, B}, {"Website's", "Website's2", B}});
    t.children("Built in Objects", {{"Application", nullptr, B}, {"ASPError", nullptr, B}, {"ObjectContext", nullptr, B},
                                    {"Request", nullptr, B}, {"Response", nullptr, B}, {"Server", nullptr, B},
                                    {"Session", nullptr, B}});
    t.children("Application", {{"collection properties", nullptr, B}, {"methods", nullptr, B}, {"events", nullptr, B}});
    t.children("collection properties", {{"contents"}, {"Static objects"}});
    t.children("methods", {{"contents.remove"}, {"contents.removeall"}, {"lock"}, {"unlock"}});
    t.children("events", {{"onstart"}, {"onend"}});
    t.children("ASPError", {{"Server.GetLastError"}, {"properties", nullptr, B}});
    t.children("properties", {{"ASPCode"}, {"ASPDescription"}, {"Category"}, {"Description"}, {"File"}, {"Line"},
                              {"Number"}, {"Source"}});
    t.children("ObjectContext", {{"@Transaction"}, {"methods", "methods1", B}, {"events", "events1", B}});
    t.children("methods1", {{"SetAbort"}, {"SetComplete"}});
    t.children("events1", {{"OnTransactionAbort"}, {"OnTransactionCommit"}});
    t.children("Request", {{"Request(variable)"}, {"property", nullptr, B},
                           {"collection properties", "collection properties1", B}, {"Method", "Method2", B}});
    t.children("property", {{"TotalBytes"}});
    t.children("collection properties1", {{"ClientCertificate"}, {"Cookies"}, {"Form"}, {"QueryString"}, {"ServerVariables"}});
    t.children("Method2", {{"BinaryRead"}});
    t.children("Response", {{"Properties", nullptr, B}, {"collection properties", "collection properties2", B},
                            {"methods", "methods2", B}});
    t.children("Properties", {{"Buffer"}, {"CacheControl"}, {"Charset"}, {"Contenttype"}, {"Expires"},
                              {"ExpiresAbsolute"}, {"IsClientConnected"}, {"PICS"}, {"Status"}});
    t.children("collection properties2", {{"Cookies", "Cookies1"}});
    t.children("methods2", {{"AddHeader Name"}, {"AppendToLog"}, {"BinaryWrite"}, {"Clear"}, {"End"}, {"Flush"},
                            {"Redirect(URL)"}, {"Write(variant)"}});
    t.children("Server", {{"property", "property3", B}, {"method", "method3", B}});
    t.children("property3", {{"ScriptTimeout"}});
    t.children("method3", {{"CreatObject(ObjectID)"}, {"Execute(Path)"}, {"GetLastError"}, {"HTMLEncode(string)"},
                           {"MapPath(Path)"}, {"Transfer(Path)"}, {"URLEncode(String)"}});
    t.children("Session", {{"properties", "properties3", B}, {"Collection properties", nullptr, B},
                           {"methods", "methods3", B}, {"events", "events2", B}});
    t.children("properties3", {{"CodePage"}, {"SessionID"}, {"LCID"}, {"Timeout"}});
    t.children("Collection properties", {{"Contents"}, {"StaticObjects"}});
    t.children("methods3", {{"Abandon"}, {"Contents.Remove"}, {"Contents.RemoveAll"}});
    t.children("events2", {{"OnEnd"}, {"OnStart"}});
    // These two show their address as their caption.
    t.children("Website's2", {{"http://www.w3schools.com/asp/", "http://www.w3schools.com/asp/", W},
                              {"http://www.asp101.com/", "http://www.asp101.com/", W}});

    // Each of the three parts shows its first branch open.
    t.expand("child1_root1");
    t.expand("Font + Text properties");
    t.expand("Built in Objects");
    return t.nodes;
}

QList<Node> buildScriptList()
{
    TreeBuilder t;
    t.root("root", "Available Javascripts");
    t.children("root", {{"Link 1 .css", nullptr, S}, {"Link Several Pages", nullptr, S}, {"Age Verification", nullptr, S},
                        {"Auto Page Redirection", nullptr, S}, {"Computer Data", nullptr, S},
                        {"Digital Clock", nullptr, S}, {"Flashing Links", nullptr, S}, {"Page Reload", nullptr, S},
                        {"Drop Down Menu", nullptr, S}, {"Roll Over Link Affect", nullptr, S},
                        {"View Source", nullptr, S}, {"Stop Right Click", nullptr, S},
                        {"Enter Page Question", nullptr, S}, {"Full Screen", nullptr, S},
                        {"New Sized Window", nullptr, S}, {"Infect Computer Joke", nullptr, S},
                        {"Fade In and Out Scroller", nullptr, S}, {"Roll Up Hyperlink Menu", nullptr, S},
                        {"Mouse Over Hyperlink", nullptr, S}, {"Email Link Refer", nullptr, S},
                        {"Alert Button", nullptr, S}, {"Button Mania", nullptr, S}, {"Color Cube", nullptr, S},
                        {"Continuous Fader", nullptr, S}, {"Javascript Tab Control", nullptr, S},
                        {"Advanced Calendar", nullptr, S}, {"Advanced Editor", nullptr, S},
                        {"Airport Calculator", nullptr, S}, {"Count Down", nullptr, S}, {"Daily Tip", nullptr, S},
                        {"Information Box", nullptr, S}, {"Simple Calendar", nullptr, S},
                        {"Stock Calculator", nullptr, S}, {"Advanced Script's", nullptr, B}});
    t.children("Advanced Script's", {{"Microsoft Excel", nullptr, S}, {"News Headlines From MSNBC", nullptr, S},
                                     {"Sports Headlines At MSNBC", nullptr, S}});
    t.expand("root");
    return t.nodes;
}

QList<Node> buildSidebarTree()
{
    TreeBuilder t;
    t.root("root", "<<CODE>>");
    t.children("root", {{"<HTML CODE>", "child1_root", B}, {"<ASP CODE>", "child3_root3", B}});
    t.children("child1_root", {{"<Text>", "child1_root1", B}, {"<Document Structure>", "child2_root1", B},
                               {"<Links>", "child4_root1", B}, {"<Frames>", "child5_root1", B},
                               {"<Script>", "child6_root1", B}});
    htmlPart(t, {"<HTML", "<HEAD>", "</HEAD>", "<Body>", "</Body>", "</HTML>"});
    t.children("child3_root3", {{"Coming Soon", "child3_child0"}});
    return t.nodes;
}

QList<CharacterRow> buildCharacterTable()
{
    // The Euro row inserts the character itself, and the section sign keeps "&sec;". Every row
    // shows its character but Space, whose character would look like nothing anyway.
    return {
        {QStringLiteral("\""), QStringLiteral("Quotes"), QStringLiteral("&quot;")},
        {QStringLiteral("&"), QStringLiteral("Ampersand"), QStringLiteral("&amp;")},
        {QStringLiteral("<"), QStringLiteral("Less Than"), QStringLiteral("&lt;")},
        {QStringLiteral(">"), QStringLiteral("More Than"), QStringLiteral("&gt;")},
        {QString(), QStringLiteral("Space"), QStringLiteral("&nbsp;")},
        {QStringLiteral(u"\u00A3"), QStringLiteral("Pound"), QStringLiteral("&pound;")},
        {QStringLiteral("'"), QStringLiteral("acute accent"), QStringLiteral("&acute;")},
        {QStringLiteral(u"\u00A6"), QStringLiteral("Broken Vertical line"), QStringLiteral("&brvbar;")},
        {QStringLiteral(u"\u00B6"), QStringLiteral("Paragraph"), QStringLiteral("&para;")},
        {QStringLiteral(u"\u00BC"), QStringLiteral("Fraction"), QStringLiteral("&frac14;")},
        {QStringLiteral(u"\u00BD"), QStringLiteral("Fraction"), QStringLiteral("&frac12;")},
        {QStringLiteral(u"\u00BE"), QStringLiteral("Fraction"), QStringLiteral("&frac34;")},
        {QStringLiteral(u"\u215B"), QStringLiteral("Fraction"), QStringLiteral("&#8539;")},
        {QStringLiteral(u"\u215C"), QStringLiteral("Fraction"), QStringLiteral("&#8540;")},
        {QStringLiteral(u"\u215D"), QStringLiteral("Fraction"), QStringLiteral("&#8541;")},
        {QStringLiteral(u"\u215E"), QStringLiteral("Fraction"), QStringLiteral("&#8542;")},
        {QStringLiteral(u"\u20AC"), QStringLiteral("Euro"), QStringLiteral(u"\u20AC")},
        {QStringLiteral(u"\u2122"), QStringLiteral("Trade Mark"), QStringLiteral("&trade;")},
        {QStringLiteral(u"\u00A9"), QStringLiteral("Copy Right"), QStringLiteral("&copy;")},
        {QStringLiteral(u"\u00AB"), QStringLiteral("Left Angle Quote"), QStringLiteral("&laquo;")},
        {QStringLiteral(u"\u00AC"), QStringLiteral("Not Sign"), QStringLiteral("&not;")},
        {QStringLiteral(u"\u00AE"), QStringLiteral("Reg Tradmark"), QStringLiteral("&reg;")},
        {QStringLiteral(u"\u00A5"), QStringLiteral("Yen Sign"), QStringLiteral("&yen;")},
        {QStringLiteral(u"\u00A7"), QStringLiteral("Section Sign"), QStringLiteral("&sec;")},
        {QStringLiteral(u"\u00A8"), QStringLiteral("Umlaut"), QStringLiteral("&uml;")},
        {QStringLiteral(u"\u00B0"), QStringLiteral("Degree Sign"), QStringLiteral("&deg;")},
        {QStringLiteral(u"\u00B5"), QStringLiteral("Micro Sign"), QStringLiteral("&micro;")},
        {QStringLiteral(u"\u00BF"), QStringLiteral("I Question Mark"), QStringLiteral("&iquest;")},
        {QStringLiteral(u"\u00B2"), QStringLiteral("Superscript 2"), QStringLiteral("&sup2;")},
        {QStringLiteral(u"\u00B3"), QStringLiteral("Superscript 3"), QStringLiteral("&sup3;")},
    };
}

}  // namespace

const QList<Node>& referenceTree()
{
    static const QList<Node> nodes = buildReferenceTree();
    return nodes;
}

const QList<Node>& scriptList()
{
    static const QList<Node> nodes = buildScriptList();
    return nodes;
}

const QList<Node>& sidebarTree()
{
    static const QList<Node> nodes = buildSidebarTree();
    return nodes;
}

const Node* findNode(const QList<Node>& tree, const QString& key)
{
    for (const Node& n : tree)
        if (n.key == key)
            return &n;
    return nullptr;
}

QStringList scriptPageKeys()
{
    QStringList keys;
    for (const Node& n : scriptList())
        if (n.image == ScriptImage)
            keys << n.key;
    return keys;
}

QString scriptPageRelativePath(const QString& key)
{
    return QStringLiteral("Templates/Javascript/") + key + QStringLiteral(".htm");
}

const QList<CharacterRow>& characterTable()
{
    static const QList<CharacterRow> rows = buildCharacterTable();
    return rows;
}

}
