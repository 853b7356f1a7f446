// The strict layer in C++17: values, ranges and results over the C functions of
// <ortholan/strict.h>, header-only, so that it works with every compiler whichever one built the
// library.
#ifndef ORTHOLAN_STRICT_HPP_
#define ORTHOLAN_STRICT_HPP_

#include <ortholan/strict/attribute_types.hpp>
#include <ortholan/strict/base.hpp>
#include <ortholan/strict/certificates.hpp>
#include <ortholan/strict/check.hpp>
#include <ortholan/strict/constraints.hpp>
#include <ortholan/strict/extension_media.hpp>
#include <ortholan/strict/extension_resources.hpp>
#include <ortholan/strict/extension_statements.hpp>
#include <ortholan/strict/extension_values.hpp>
#include <ortholan/strict/extension_vendors.hpp>
#include <ortholan/strict/extensions.hpp>
#include <ortholan/strict/general_names.hpp>
#include <ortholan/strict/identity.hpp>
#include <ortholan/strict/matching.hpp>
#include <ortholan/strict/name_edit.hpp>
#include <ortholan/strict/names.hpp>

#endif  // ORTHOLAN_STRICT_HPP_
