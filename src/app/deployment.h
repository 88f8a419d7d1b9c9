// What a build is made for: the sponsor, the product's site, the maker's
// addresses. Set as CMake cache variables (see the README); the defaults
// lie under the reserved example domains.
#pragma once

#include <string>

namespace jeerbox {

struct Deployment {
  std::string sponsorHomeUrl;   // the banner opens it
  std::string sponsorHost;      // shown under the banner
  std::string productSiteUrl;   // named in the about box
  std::string productDomain;    // the window's caption
  std::string sponsorsAddress;  // where would-be sponsors write
  std::string testHost;         // answers GET /connectiontest.html
  std::string noticeLine;       // the about box's last paragraph

  // http://<testHost>/connectiontest.html
  std::string ConnectionTestUrl() const { return "http://" + testHost + "/connectiontest.html"; }
};

// The constants this build was configured with.
Deployment BuiltInDeployment();

}  // namespace jeerbox
