#include "stylesheets/Registration.h"

#include "platform/Forms.h"
#include "stylesheets/StyleSheets.h"
#include "stylesheets/frmCSSCreate.h"

void registerStylesheets()
{
    registerForm<CSSCentral>();
    registerForm<CSSCREATE>();
    registerForm<frmscrollbar>();
    registerForm<StyleLink>();
    registerForm<frmCSSCreate>();
}
