#include "contacts/ContactActions.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <iterator>

namespace ombrin {

namespace {

constexpr ContactActionLook kLooks[kContactActionCount] = {
        {":/exit-16", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Kick Contact"), "exit",
         QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Kick contact")},
        {":/chat-16", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Chat with Contact"), "chat",
         QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Chat with contact")},
        {":/phone-16", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Call Contact"), "voip",
         QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Call contact")},
        {":/filetransfer-16", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Send File"),
         "filetransfer", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Send file")},
        {":/webfolder-16", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Open Web Folder"),
         "webfolder", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Open web folder")},
        {":/profile-16", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Show Profile"), "profile",
         QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Show profile")},
        {":/block-16", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Block Contact"), "block",
         QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Block contact")},
        {":/authorization-16", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Authenticate Contact"),
         "auth", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Authenticate contact")},
};

constexpr ContactActionLook kUnblockLook = {
        ":/unblock-32", QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Unblock Contact"), "unblock",
        QT_TRANSLATE_NOOP("ombrin::OmContactCard", "Unblock contact")};

template <typename... Actions>
constexpr ClientActions row(int application, Actions... actions)
{
    return {application, sizeof...(actions), {actions...}};
}

constexpr auto kKick = ContactAction::Kick;
constexpr auto kChat = ContactAction::Chat;
constexpr auto kCall = ContactAction::Call;
constexpr auto kSendFile = ContactAction::SendFile;
constexpr auto kWebFolder = ContactAction::WebFolder;
constexpr auto kProfile = ContactAction::Profile;
constexpr auto kBlock = ContactAction::Block;
constexpr auto kAuthenticate = ContactAction::Authenticate;

constexpr ClientActions kClients[] = {
        row(1, kProfile, kCall, kSendFile, kWebFolder, kBlock),
        row(2, kKick, kChat, kSendFile),
        row(3, kChat, kSendFile),
        row(4, kKick, kAuthenticate),
        row(5, kAuthenticate),
        row(10, kKick, kChat, kCall, kSendFile, kWebFolder, kProfile, kBlock),
        row(11, kChat, kCall, kSendFile, kWebFolder, kProfile, kBlock),
        row(12, kKick, kProfile, kCall, kAuthenticate),
        row(13, kProfile, kCall, kAuthenticate),
        row(15, kProfile, kCall, kAuthenticate),
        row(19, kChat, kCall, kSendFile),
};

} // namespace

const ContactActionLook &contactActionLook(ContactAction action, bool isBlocked)
{
    if (action == ContactAction::Block && isBlocked)
        return kUnblockLook;
    return kLooks[static_cast<std::size_t>(action)];
}

const ClientActions *clientActions(Om::ClientApplication application)
{
    const auto row = std::find_if(std::begin(kClients), std::end(kClients),
                                  [=](const ClientActions &client) {
                                      return client.application == static_cast<int>(application);
                                  });
    return row == std::end(kClients) ? nullptr : row;
}

} // namespace ombrin
