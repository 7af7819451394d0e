#pragma once

#include <ombrin/Om.h>

#include <array>
#include <cstddef>

namespace ombrin {

/// What a user can have done with a contact, in the order in which a card keeps its actions.
enum class ContactAction {
    Kick,
    Chat,
    Call,
    SendFile,
    WebFolder,
    Profile,
    Block,
    Authenticate,
};
constexpr std::size_t kContactActionCount = 8;

/// How an action is shown and called. The texts are in English, to be translated by OmContactCard.
struct ContactActionLook
{
    const char *icon;
    const char *text;
    const char *id;
    const char *toolTip;
};

/// The look of \a action. Only a blocked contact's Block action looks different from the others'.
const ContactActionLook &contactActionLook(ContactAction action, bool isBlocked);

/// The actions that one client application supports, in the order in which they are shown.
struct ClientActions
{
    const ContactAction *begin() const { return actions.data(); }
    const ContactAction *end() const { return actions.data() + count; }

    int application;
    std::size_t count;
    std::array<ContactAction, 7> actions;
};

/// Null if \a application supports none.
const ClientActions *clientActions(Om::ClientApplication application);

} // namespace ombrin
