#pragma once

// The site projects' windows.
void registerSites();
