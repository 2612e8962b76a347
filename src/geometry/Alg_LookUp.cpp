#include "geometry/Alg.h"

namespace vrek::Alg {

template <class T>
int Find(double ch, const T& a) {
  const int n = UpperBound(a);
  for (int i = 1; i <= n; ++i) {
    if (ch < a[i].dChainage) return i - 1 < 1 ? 1 : i - 1;
    if (ch == a[i].dChainage) return i;
  }
  return n;
}
int FindHzElement(double ch, const THzElements& a) {
  return Find(ch, a);
}
int FindVtElement(double ch, const TVtElements& a) {
  return Find(ch, a);
}

}  // namespace vrek::Alg
