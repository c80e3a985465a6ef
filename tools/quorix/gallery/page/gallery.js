// Shows only the figures that match all choices. Without this script the page shows all figures.
const form = document.querySelector("form");
const figures = [...document.querySelectorAll("figure")];
function filter() {
  const wanted = [...form.querySelectorAll("select")].filter((select) => select.value);
  for (const figure of figures) {
    figure.hidden = wanted.some((select) => figure.dataset[select.name] !== select.value);
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
