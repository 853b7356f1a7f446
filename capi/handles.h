// What stands behind the handles.
#ifndef ORTHOLAN_CAPI_HANDLES_H_
#define ORTHOLAN_CAPI_HANDLES_H_

#include <ortholan/cert_extension.h>
#include <ortholan/general_name.h>
#include <ortholan/ortholan_c.h>
#include <ortholan/x509_name.h>

#include <vector>

// Always bytes whose attributes can be read.
struct ortholan_name {
  Ortholan::X509Name name;
};

// A decoded name: its content is the whole element, one whose own content lies within it.
struct ortholan_general_name {
  // Rendering is not declared const and changes nothing.
  mutable Ortholan::GeneralName name;
};

struct ortholan_general_names {
  std::vector<Ortholan::GeneralName> names;
};

struct ortholan_extension {
  // Writing is not declared const and changes nothing.
  mutable Ortholan::CertExtension extension;
};

struct ortholan_extensions {
  Ortholan::CertExtensionList list;
  // The list's elements by index.
  std::vector<Ortholan::CertExtension*> order;
};

#endif  // ORTHOLAN_CAPI_HANDLES_H_
