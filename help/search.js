// The search box of the help book's index: finds the pages whose words start with every
// word typed, best matches first (title words count more than body words).
(function () {
  "use strict";
  function words(text) {
    return text.toLowerCase().split(/[^a-z0-9']+/).filter(function (w) { return w.length > 0; });
  }
  function score(page, query) {
    var title = words(page.title), body = page.words, total = 0;
    for (var i = 0; i < query.length; i++) {
      var q = query[i], hits = 0;
      for (var t = 0; t < title.length; t++) if (title[t].indexOf(q) === 0) hits += 5;
      for (var b = 0; b < body.length; b++) if (body[b].indexOf(q) === 0) hits += 1;
      if (hits === 0) return 0;
      total += hits;
    }
    return total;
  }
  function show(query) {
    var list = document.getElementById("results");
    list.innerHTML = "";
    var typed = words(query);
    if (typed.length === 0) return;
    var found = [];
    for (var p = 0; p < QUILLHOLLOW_HELP_INDEX.length; p++) {
      var page = QUILLHOLLOW_HELP_INDEX[p], s = score(page, typed);
      if (s > 0) found.push({ page: page, score: s });
    }
    found.sort(function (a, b) { return b.score - a.score; });
    if (found.length === 0) {
      var none = document.createElement("li");
      none.textContent = "Nothing found. Try a shorter word, or look through the contents below.";
      list.appendChild(none);
    }
    for (var f = 0; f < found.length && f < 12; f++) {
      var item = document.createElement("li"), link = document.createElement("a");
      link.href = found[f].page.page;
      link.textContent = found[f].page.title;
      item.appendChild(link);
      var where = document.createElement("div");
      where.className = "where";
      where.textContent = found[f].page.summary;
      item.appendChild(where);
      list.appendChild(item);
    }
  }
  window.addEventListener("DOMContentLoaded", function () {
    var box = document.getElementById("search");
    box.addEventListener("input", function () { show(box.value); });
    var asked = new URLSearchParams(window.location.search).get("q");
    if (asked) { box.value = asked; show(asked); }
    box.focus();
  });
})();
