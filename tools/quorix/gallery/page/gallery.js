// Shows only the figures that match all choices. Without this script the page shows all figures.
const form = document.querySelector("form");
const figures = [...document.querySelectorAll("figure")];
function filter() {
  const wanted = [...form.querySelectorAll("select")].map((select) => select.value).filter(Boolean);
  for (const figure of figures) {
    figure.hidden = !wanted.every((name) => figure.classList.contains(name));
  }
  for (const section of document.querySelectorAll("section")) {
    section.hidden = !section.querySelector("figure:not([hidden])");
  }
  const shown = figures.filter((figure) => !figure.hidden).length;
  form.querySelector("output").value = `${shown} of ${figures.length}`;
}
form.hidden = false;
form.addEventListener("change", filter);
filter();
