#pragma once

/// \file
/// The expressions behind the recognisers, as QRegExp takes them. The anchors at their ends are
/// dropped before a whole text is matched.

namespace ombrin::vhutilities {

/// What could be a telephone number, tried in this order. QRegExp cannot parse the third, with its
/// named groups, nor the fifth, with its twofold repetition: they match nothing.
inline constexpr const char *kPhonePatterns[] = {
        R"(^([a-zA-Z,#/ \.\(\)\-\+\*]*[0-9]){7}[0-9a-zA-Z,#/ \.\(\)\-\+\*]*$)",
        R"(^(1\s*[-\/\.]?)?(\((\d{3})\)|(\d{3}))\s*([\s-./\\])?([0-9]*)([\s-./\\])?([0-9]*)$)",
        R"(^(?:(?:[\+]?(?<CountryCode>[\d]{1,3}(?:[ ]+|[\-.])))?[(]?(?<AreaCode>[\d]{3})[\-/)]?(?:)"
        R"([ ]+)?)?(?<Number>[a-zA-Z2-9][a-zA-Z0-9 \-.]{6,})(?:(?:[ ]+|[xX]|(i:ext[\.]?)){1,2}(?<E)"
        R"(xt>[\d]{1,5}))?$)",
        R"((\+)?([-\._\(\) ]?[\d]{3,20}[-\._\(\) ]?){2,10})",
        R"(^((\+)?(\d{2})[-])?(([\(])?((\d){3,5})([\)])?[-])|(\d{3,5})(\d{5,8}){1}?$)",
        R"(^\(?([0-9]{3})\)?[\s\.\-]*([0-9]{3})[\s\.\-]*([0-9]{4})$)",
        R"(^\(\d{1,2}(\s\d{1,2}){1,2}\)\s(\d{1,2}(\s\d{1,2}){1,2})((-(\d{1,4})){0,1})$)",
        R"(((\(\d{3,4}\)|\d{3,4}-)\d{4,9}(-\d{1,5}|\d{0}))|(\d{4,12}))",
        R"((\s+|)((\(\d{3}\) +)|(\d{3}-)|(\d{3} +))?\d{3}(-| +)\d{4}( +x\d{1,4})?(\s+|))",
        R"(^0[1-6]{1}(([0-9]{2}){4})|((\s[0-9]{2}){4})|((-[0-9]{2}){4})$)",
};

/// What could be an e-mail address.
inline constexpr const char *kAddressPattern =
        R"((([\w]+:)?//)?(([\d\w]|%[a-fA-f\d]{2,2})+(:([\d\w]|%[a-fA-f\d]{2,2})+)?@)?([\d\w][-\d\w])"
        R"({0,253}[\d\w]\.)+[\w]{2,4}(:[\d]+)?(/([-+_~.\d\w]|%[a-fA-f\d]{2,2})*)*(\?(&?([-+_~.\d\w])"
        R"(|%[a-fA-f\d]{2,2})=?)*)?(#([-+_~.\d\w]|%[a-fA-f\d]{2,2})*)?)";
/// What more could be one where the check is not strict.
inline constexpr const char *kLooseAddressPattern = R"(^.+@[^\.].*\.[a-z]{2,}$)";

} // namespace ombrin::vhutilities
