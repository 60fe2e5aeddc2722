/// The page of the settings and its dialogs.
#pragma once

class Photographer;

namespace vorlindesk {
class FrameworkContext;
}

void takeSettings(Photographer &photographer, vorlindesk::FrameworkContext &context);
