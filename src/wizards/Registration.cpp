#include "wizards/Registration.h"

#include "platform/Forms.h"
#include "wizards/CSVWizard.h"
#include "wizards/Fontform.h"
#include "wizards/Hyperlink1.h"
#include "wizards/JavaApplet.h"
#include "wizards/Media.h"
#include "wizards/Object.h"
#include "wizards/RealAudio.h"
#include "wizards/Scrolltextbox.h"
#include "wizards/TableWizard.h"
#include "wizards/Tableform.h"
#include "wizards/Textinput.h"
#include "wizards/bulletform.h"
#include "wizards/dropmenu1.h"
#include "wizards/dropmenu2.h"
#include "wizards/emailform.h"
#include "wizards/externalwindow.h"
#include "wizards/CSSform.h"
#include "wizards/imageform.h"
#include "wizards/lineform.h"
#include "wizards/marqueeform.h"
#include "wizards/pageproperties.h"
#include "wizards/scriptform.h"

void registerWizards()
{
    registerForm<lineform>();
    registerForm<emailform>();
    registerForm<Textinput>();
    registerForm<bulletform>();
    registerForm<marqueeform>();
    registerForm<Scrolltextbox>();
    registerForm<Fontform>();
    registerForm<Hyperlink1>();
    registerForm<dropmenu1>();
    registerForm<dropmenu2>();
    registerForm<scriptform>();
    registerForm<externalwindow>();
    registerForm<CSSform>();
    registerForm<Tableform>();
    registerForm<TableWizard>();
    registerForm<CSVWizard>();
    registerForm<pageproperties>();
    registerForm<imageform>();
    registerForm<Media>();
    registerForm<JavaApplet>();
    registerForm<RealAudio>();
    registerForm<Object>();
}
