// The gallery page byte for byte, for both layouts, and the addresses of awkward file names.
#include "common/Utf8.h"
#include "common/JumpMenuScript.h"
#include "pagetools/PictureShow.h"
#include "wizards/DropDownScript.h"

#include <gtest/gtest.h>

namespace {

const char* const head =
    "<html>\r\n\r\n<head>\r\n<meta name=\"GENERATOR\" content=\"Velloro 2002\">\r\n<meta name=\"AUTHOR\" content=\"Ansel Corby\">\r\n"
    "<title> Pictures </title>\r\n</head> \r\n\r\n<body text=\"#000000\" bgColor=\"ffffff\">\r\n";
const char* const tail = "<br><p align=Center>Made by Velloro 2002 Pro</p>\r\n</body>\r\n</html>\r\n";
}

TEST(PictureShow, ScriptAndHeads)
{
    EXPECT_EQ(DropDownScript::text(), u(jumpScript));
    EXPECT_EQ(PictureShow::bulletHead(), u(head));
    EXPECT_EQ(PictureShow::dropDownHead(), u(head) + u(" ") + u(jumpScript) + u("\r\n"));
}

TEST(PictureShow, Pages)
{
    const QStringList items = {u("/pics/a.gif"), u("/pics/b.jpg"), u("/pics/a.gif")};
    EXPECT_EQ(PictureShow::page(items, PictureShow::Layout::Bullets),
              u(head) +
                  u("<a name=TOP><p>There are 3 pictures in this page.</p>\r\n<ul>\r\n"
                    "<li><a href=#/pics/a.gif>/pics/a.gif</a></li>\r\n<li><a href=#/pics/b.jpg>/pics/b.jpg</a></li>\r\n"
                    "<li><a href=#/pics/a.gif>/pics/a.gif</a></li>\r\n</ul>\r\n"
                    "<a name=/pics/a.gif><br><p align=Center>/pics/a.gif <a href=#TOP>[ TOP ]</a></p><p align=Center><img src=/pics/a.gif></p>\r\n"
                    "<a name=/pics/b.jpg><br><p align=Center>/pics/b.jpg <a href=#TOP>[ TOP ]</a></p><p align=Center><img src=/pics/b.jpg></p>\r\n"
                    "<a name=/pics/a.gif><br><p align=Center>/pics/a.gif <a href=#TOP>[ TOP ]</a></p><p align=Center><img src=/pics/a.gif></p>\r\n") +
                  u(tail));
    EXPECT_EQ(PictureShow::page({u("/p/x.bmp")}, PictureShow::Layout::DropDown),
              u(head) + u(" ") + u(jumpScript) +
                  u("\r\n<p>There are 1 pictures in this page.</p>\r\n"
                    "<a name=TOP><p align=Center><input type=Button value=Go name=B3 onclick=DropDownMenu(D1) ><select size=1 name=D1>\r\n"
                    "<option value=#/p/x.bmp>/p/x.bmp</option>\r\n</select></p>\r\n"
                    "<a name=/p/x.bmp><br><p align=Center>/p/x.bmp <a href=#TOP>[ TOP ]</a></p><p align=Center><img src=/p/x.bmp></p>\r\n") +
                  u(tail));
    EXPECT_EQ(PictureShow::page({}, PictureShow::Layout::Bullets),
              u(head) + u("<a name=TOP><p>There are 0 pictures in this page.</p>\r\n<ul>\r\n</ul>\r\n") + u(tail));
}

TEST(PictureShow, AwkwardNames)
{
    const struct {
        const char* item;
        const char* address;
        const char* shown;
    } cases[] = {
        {"/home/u/pics/Photo_01-b.v2.JPG", "/home/u/pics/Photo_01-b.v2.JPG", "/home/u/pics/Photo_01-b.v2.JPG"},
        {"/a b/c d.gif", "/a%20b/c%20d.gif", "/a b/c d.gif"},
        {"/x/#1&2.gif", "/x/%231%262.gif", "/x/#1&amp;2.gif"},
        {"/x/\"q\" 'r'.png", "/x/%22q%22%20%27r%27.png", "/x/\"q\" 'r'.png"},
        {"/x/<b>=`%.gif", "/x/%3Cb%3E%3D%60%25.gif", "/x/&lt;b&gt;=`%.gif"},
        {"/x/café,ü.jpg", "/x/caf%C3%A9,%C3%BC.jpg", "/x/café,ü.jpg"},
        {"/x/\xF0\x9F\x93\xB7.png", "/x/%F0%9F%93%B7.png", "/x/\xF0\x9F\x93\xB7.png"},
        {"/x/tab\there.gif", "/x/tab%09here.gif", "/x/tab\there.gif"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(PictureShow::address(u(c.item)), u(c.address)) << c.item;
        EXPECT_EQ(PictureShow::shown(u(c.item)), u(c.shown)) << c.item;
    }
}
