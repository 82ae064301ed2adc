#pragma once

// The jump menu's script, which the jump menu wizard and the picture show's drop-down page both
// write: line by line, each line ended by CR LF but the last.
inline const char* const jumpScript =
    "<script>\r\n"
    "function DropDownMenu(entered)\r\n"
    "{\r\n"
    "with (entered)\r\n"
    "{\r\n"
    "ref=options[selectedIndex].value; \r\n"
    "splitcharacter=ref.lastIndexOf(\"&\"); \r\n"
    "if (splitcharacter!=-1) {loc=ref.substring(0,splitcharacter);   target=ref.substring(splitcharacter+1,1000).toLowerCase();}\r\n"
    "else {loc=ref; target=\"_self\";};\r\n"
    "lowloc=loc.toLowerCase(); \r\n"
    "if (lowloc==\"false\") {return;} \r\n"
    "if (target==\"_self\") {document.location=loc;} \r\n"
    "else {if (target==\"_top\") {top.location=loc;} \r\n"
    "else {if (target==\"_blank\") {window.open(loc);} \r\n"
    "else{if (target==\"_parent\") {parent.location=loc;}\r\n"
    "else {parent.frames[target].location=loc;}; \r\n"
    "}}}}\r\n"
    "}\r\n"
    "</script>";
