// The deployment constants, from the compile definitions CMake passes.
#include "app/deployment.h"

namespace jeerbox {

Deployment BuiltInDeployment() {
  Deployment d;
  d.sponsorHomeUrl = JEERBOX_SPONSOR_URL;
  d.sponsorHost = JEERBOX_SPONSOR_HOST;
  d.productSiteUrl = JEERBOX_PRODUCT_URL;
  d.productDomain = JEERBOX_PRODUCT_DOMAIN;
  d.sponsorsAddress = JEERBOX_SPONSORS_ADDRESS;
  d.testHost = JEERBOX_TEST_HOST;
  d.noticeLine = JEERBOX_NOTICE;
  return d;
}

}  // namespace jeerbox
