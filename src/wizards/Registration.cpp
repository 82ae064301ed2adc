#include "wizards/Registration.h"

#include "platform/Forms.h"
#include "wizards/CSVWizard.h"
#include "wizards/Fontform.h"
#include "wizards/JavaApplet.h"
#include "wizards/Media.h"
#include "wizards/Object.h"
#include "wizards/RealAudio.h"
#include "wizards/Scrolltextbox.h"
#include "wizards/TableWizard.h"
#include "wizards/Tableform.h"
#include "wizards/Textinput.h"
#include "wizards/bulletform.h"
#include "wizards/emailform.h"
#include "wizards/imageform.h"
#include "wizards/lineform.h"
#include "wizards/marqueeform.h"
#include "wizards/pageproperties.h"

void registerWizards()
{
    registerForm<lineform>();
    registerForm<emailform>();
    registerForm<Textinput>();
    registerForm<bulletform>();
    registerForm<marqueeform>();
    registerForm<Scrolltextbox>();
    registerForm<Fontform>();
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
