// The strict layer: what decisions about certificate names stand on. Plain C over octets and UTF-8,
// the same on every platform and for every compiler; <ortholan/strict.hpp> has it for C++.
#ifndef ORTHOLAN_STRICT_H_
#define ORTHOLAN_STRICT_H_

#include <ortholan/strict/attribute_types.h>
#include <ortholan/strict/base.h>
#include <ortholan/strict/certificates.h>
#include <ortholan/strict/check.h>
#include <ortholan/strict/columns.h>
#include <ortholan/strict/constraints.h>
#include <ortholan/strict/extension_builders.h>
#include <ortholan/strict/extension_media.h>
#include <ortholan/strict/extension_resources.h>
#include <ortholan/strict/extension_values.h>
#include <ortholan/strict/extension_vendors.h>
#include <ortholan/strict/extensions.h>
#include <ortholan/strict/general_names.h>
#include <ortholan/strict/identity.h>
#include <ortholan/strict/matching.h>
#include <ortholan/strict/name_edit.h>
#include <ortholan/strict/names.h>

#endif  // ORTHOLAN_STRICT_H_
