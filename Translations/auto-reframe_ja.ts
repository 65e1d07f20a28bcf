<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Auto Reframe</source>
        <translation>Auto Reframe について</translation>
    </message>
    <message>
        <source>Auto Reframe %1</source>
        <translation>Auto Reframe %1</translation>
    </message>
    <message>
        <source>Keeps the subject of a video in the picture. Everything runs on this computer.</source>
        <translation>動画の被写体を画面内に収めます。すべてこのコンピューター上で動作します。</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>AnalysisPlot</name>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>The crop&apos;s path over the evidence</source>
        <translation>手がかりの上に描いたクロップの軌跡</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>シグナル別の手がかり</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>強い</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>AnalysisReport</name>
    <message>
        <source>1 frame</source>
        <translation>1 フレーム</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n フレーム</numerusform>
        </translation>
    </message>
    <message>
        <source>The crop</source>
        <translation>クロップ</translation>
    </message>
    <message>
        <source>Frames of the video with the crop drawn</source>
        <translation>クロップを描き込んだ動画のフレーム</translation>
    </message>
    <message>
        <source>Path of the crop</source>
        <translation>クロップの軌跡</translation>
    </message>
    <message>
        <source>Time runs from left to right. The left of the picture is at the bottom, its right at the top. A brighter spot has more evidence.</source>
        <translation>時間は左から右へ進みます。画面の左端が下、右端が上です。明るい箇所ほど手がかりが多くあります。</translation>
    </message>
    <message>
        <source>Time runs from left to right. The bottom of the picture is at the bottom, its top at the top. A brighter spot has more evidence.</source>
        <translation>時間は左から右へ進みます。画面の下端が下、上端が上です。明るい箇所ほど手がかりが多くあります。</translation>
    </message>
    <message>
        <source>centre of the crop</source>
        <translation>クロップの中心</translation>
    </message>
    <message>
        <source>edges of the crop</source>
        <translation>クロップの端</translation>
    </message>
    <message>
        <source>centre with the most evidence</source>
        <translation>手がかりが最も多い中心</translation>
    </message>
    <message>
        <source>start of a shot, numbered above</source>
        <translation>ショットの開始 (上に番号)</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>シグナル別の手がかり</translation>
    </message>
    <message>
        <source>How much stronger each signal is at the centre with the most evidence than at an average place.</source>
        <translation>手がかりが最も多い中心で、各シグナルが平均的な位置よりどれだけ強いかを示します。</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>ショット</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the width of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>移動量は、ショット内でのクロップの動きの合計を画面の幅に対する割合 (%) で示したものです。信頼度は、クロップの外に中と同じくらい強い手がかりがあるときや、シグナルが別の位置を示すときに下がります。低いショットは確認してください。</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the height of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>移動量は、ショット内でのクロップの動きの合計を画面の高さに対する割合 (%) で示したものです。信頼度は、クロップの外に中と同じくらい強い手がかりがあるときや、シグナルが別の位置を示すときに下がります。低いショットは確認してください。</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>ショット</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>最初のフレーム</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Dominant signal</source>
        <translation>主なシグナル</translation>
    </message>
    <message>
        <source>Travel of the crop</source>
        <translation>クロップの移動量</translation>
    </message>
    <message>
        <source>Confidence</source>
        <translation>信頼度</translation>
    </message>
    <message>
        <source>%1 at %2:%3</source>
        <translation>%1 (%2:%3)</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>ファイルサイズ</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>フレーム/秒</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>クロップ</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>高速</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>低速</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>none: the crop is centred</source>
        <translation>なし: クロップは中央</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <translation>%1、%2%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>AutoReframeOptions</name>
    <message>
        <source>%1
Try auto-reframe --help.</source>
        <translation>%1
auto-reframe --help を参照してください。</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>このテキストを表示します。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>Turns videos into another aspect ratio and keeps their subject in the picture.
The command line program for many files at once is reframe.</source>
        <translation>動画を別のアスペクト比に変換し、被写体を画面内に収めます。
多数のファイルを一度に処理するコマンドラインプログラムは reframe です。</translation>
    </message>
    <message>
        <source>Videos to open the library with.</source>
        <translation>ライブラリで開く動画。</translation>
    </message>
    <message>
        <source>Language of the texts: %1. Otherwise the one chosen in the menu, or that of the system.</source>
        <translation>表示言語: %1。指定しない場合はメニューで選んだ言語、またはシステムの言語です。</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Shorts, Reels, Stories</source>
        <translation>ショート、リール、ストーリー</translation>
    </message>
    <message>
        <source>Feed, portrait</source>
        <translation>フィード (縦)</translation>
    </message>
    <message>
        <source>Feed, square</source>
        <translation>フィード (正方形)</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>シネマ</translation>
    </message>
    <message>
        <source>Widescreen</source>
        <translation>ワイド</translation>
    </message>
    <message>
        <source>Classic television</source>
        <translation>従来のテレビ</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>低速</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>高速</translation>
    </message>
    <message>
        <source>As large as the crop</source>
        <translation>クロップと同じ大きさ</translation>
    </message>
    <message>
        <source>Shorter side %1 pixels</source>
        <translation>短辺 %1 ピクセル</translation>
    </message>
    <message>
        <source>Choose an aspect ratio.</source>
        <translation>アスペクト比を選択してください。</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The selected videos have this aspect ratio already.</source>
        <translation>選択した動画はすでにこのアスペクト比です。</translation>
    </message>
    <message numerus="yes">
        <source>%n files: %1</source>
        <translation>
            <numerusform>%n 個のファイル: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reframe %n Videos</source>
        <translation>
            <numerusform>%n 本の動画をリフレーム</numerusform>
        </translation>
    </message>
    <message>
        <source>Aspect Ratios</source>
        <translation>アスペクト比</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>動きの速度</translation>
    </message>
    <message>
        <source>How readily the crop follows the subject</source>
        <translation>クロップが被写体に追従する速さ</translation>
    </message>
    <message>
        <source>Output Size</source>
        <translation>出力サイズ</translation>
    </message>
    <message>
        <source>The size of the exported videos</source>
        <translation>書き出す動画のサイズ</translation>
    </message>
    <message>
        <source>File Name, with %1</source>
        <translation>ファイル名 (使用可: %1)</translation>
    </message>
    <message>
        <source>What stands in braces is replaced for each file.</source>
        <translation>波かっこの部分はファイルごとに置き換えられます。</translation>
    </message>
    <message>
        <source>The folder for the exported videos</source>
        <translation>動画の書き出し先フォルダー</translation>
    </message>
    <message>
        <source>Reframe All</source>
        <translation>すべてリフレーム</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>高さ %1 ピクセル</translation>
    </message>
    <message numerus="yes">
        <source>%n files, enlarged beyond their crops: %1</source>
        <translation>
            <numerusform>%n 個のファイル (クロップより拡大): %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropFinder</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>%1 をリフレームできません: %2。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>%1 をリフレームできません: 動画の映像がありません。</translation>
    </message>
    <message>
        <source>Cannot use %1: it has the crops of %2 frames, and %3 has %4 frames.</source>
        <translation>%1 を使用できません: %2 フレーム分のクロップがありますが、%3 は %4 フレームです。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2 already.</source>
        <translation>%1 をリフレームできません: すでにアスペクト比 %2 です。</translation>
    </message>
    <message numerus="yes">
        <source>Cannot reframe %1: it has only %n frames; %2 are needed.</source>
        <translation>
            <numerusform>%1 をリフレームできません: %n フレームしかありません。%2 フレーム必要です。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropRenderSettings</name>
    <message>
        <source>its picture of %1 x %2 pixels is too small</source>
        <translation>%1 x %2 ピクセルの画面は小さすぎます</translation>
    </message>
</context>
<context>
    <name>CropTrackDialog</name>
    <message>
        <source>Enter a file name.</source>
        <translation>ファイル名を入力してください。</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Save Crop Track</source>
        <translation>クロップトラックを保存</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>The file gets a number if there is one of this name</source>
        <translation>同じ名前のファイルがある場合は番号が付きます</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>The command line reads both</source>
        <translation>コマンドラインではどちらも読み込めます</translation>
    </message>
    <message>
        <source>The folder for the crop track</source>
        <translation>クロップトラックの保存先フォルダー</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Export for %1</source>
        <translation>%1 用に書き出し</translation>
    </message>
    <message>
        <source>The folder for the project or the keyframes</source>
        <translation>プロジェクトまたはキーフレームの保存先フォルダー</translation>
    </message>
</context>
<context>
    <name>CropTrackFile</name>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 を開けません: %2。</translation>
    </message>
    <message>
        <source>Cannot use %1: it is too large for a crop track of a video of %2 frames.</source>
        <translation>%1 を使用できません: %2 フレームの動画のクロップトラックとしては大きすぎます。</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 を読み込めません: %2。</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds no frames.</source>
        <translation>%1 を使用できません: フレームが含まれていません。</translation>
    </message>
</context>
<context>
    <name>CropTrackParser</name>
    <message>
        <source>Cannot use %1: it is no crop track (line %2).</source>
        <translation>%1 を使用できません: クロップトラックではありません (%2 行目)。</translation>
    </message>
    <message>
        <source>Cannot use %1: frame %2 is no rectangle inside the picture.</source>
        <translation>%1 を使用できません: フレーム %2 は画面内の矩形ではありません。</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds more frames than the video, which has %2.</source>
        <translation>%1 を使用できません: 動画 (%2 フレーム) より多くのフレームが含まれています。</translation>
    </message>
    <message>
        <source>Cannot use %1: it is a crop track of version %2, and this program reads version 1.</source>
        <translation>%1 を使用できません: バージョン %2 のクロップトラックです。このプログラムが読み込めるのはバージョン 1 です。</translation>
    </message>
</context>
<context>
    <name>CropWait</name>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Analyzing %1</source>
        <translation>%1 を解析中</translation>
    </message>
</context>
<context>
    <name>DialogEdits</name>
    <message>
        <source>As large as the crop</source>
        <translation>クロップと同じ大きさ</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>高さ %1 ピクセル</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
</context>
<context>
    <name>ExportCard</name>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>要確認 %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Progress of %1</source>
        <translation>%1 の進行状況</translation>
    </message>
    <message>
        <source>Cancel %1</source>
        <translation>%1 をキャンセル</translation>
    </message>
    <message>
        <source>Retry %1</source>
        <translation>%1 を再試行</translation>
    </message>
    <message>
        <source>Look at the doubtful shots of %1</source>
        <translation>%1 の要確認ショットを見る</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>%1 をフォルダーで表示</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Paused · %1</source>
        <translation>一時停止中 · %1</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Analyzing · %1</source>
        <translation>解析中 · %1</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>キャンセル中…</translation>
    </message>
    <message>
        <source>Done · %1</source>
        <translation>完了 · %1</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>未完了</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーで表示</translation>
    </message>
    <message>
        <source>Export it again</source>
        <translation>もう一度書き出す</translation>
    </message>
    <message>
        <source>Show the file in its folder</source>
        <translation>ファイルをフォルダーで表示</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>リストから削除</translation>
    </message>
    <message>
        <source>Opens the video at these settings and its first doubtful shot; N leads to the next one.</source>
        <translation>この設定で動画を開き、最初の要確認ショットを表示します。N キーで次に移動します。</translation>
    </message>
</context>
<context>
    <name>ExportForMenu</name>
    <message>
        <source>Export for</source>
        <translation>他のプログラム用に書き出し</translation>
    </message>
    <message>
        <source>%1 (.%2)…</source>
        <translation>%1 (.%2)…</translation>
    </message>
</context>
<context>
    <name>ExportManners</name>
    <message>
        <source>Exported %1</source>
        <translation>%1 を書き出しました</translation>
    </message>
    <message>
        <source>Cannot export %1</source>
        <translation>%1 を書き出せません</translation>
    </message>
    <message>
        <source>Videos are being exported</source>
        <translation>動画を書き出しています</translation>
    </message>
</context>
<context>
    <name>ExportPanel</name>
    <message>
        <source>Exports</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Clear finished</source>
        <translation>完了分を消去</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Remove the finished exports from the list; their files stay</source>
        <translation>完了した書き出しをリストから削除します。ファイルは残ります</translation>
    </message>
    <message>
        <source>Export those that the last run did not finish</source>
        <translation>前回完了しなかったものを書き出します</translation>
    </message>
    <message>
        <source>Remove those that the last run did not finish from the list</source>
        <translation>前回完了しなかったものをリストから削除します</translation>
    </message>
    <message>
        <source>Videos that you export from the Auto Reframe window appear here.</source>
        <translation>Auto Reframe ウィンドウから書き出した動画がここに表示されます。</translation>
    </message>
    <message numerus="yes">
        <source>%n exports not finished</source>
        <translation>
            <numerusform>未完了の書き出し %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportRecord</name>
    <message>
        <source>Cannot export: no name or no folder was given.</source>
        <translation>書き出せません: 名前またはフォルダーが指定されていません。</translation>
    </message>
    <message>
        <source>Cannot export %1: no picture size was given.</source>
        <translation>%1 を書き出せません: 画面サイズが指定されていません。</translation>
    </message>
</context>
<context>
    <name>FarmOptions</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 を開けません: %2。</translation>
    </message>
    <message>
        <source>Cannot read the folder %1.</source>
        <translation>フォルダー %1 を読み込めません。</translation>
    </message>
    <message>
        <source>Of a folder that is an input, take the videos in its subfolders too.</source>
        <translation>入力がフォルダーの場合、サブフォルダーの動画も対象にします。</translation>
    </message>
    <message>
        <source>Read more inputs from FILE, one a line; - is standard input.</source>
        <translation>FILE から入力を 1 行に 1 つずつ読み込みます。- は標準入力です。</translation>
    </message>
    <message>
        <source>Write progress and results to FILE as JSON lines, whatever is printed.</source>
        <translation>表示の設定に関係なく、進行状況と結果を JSON の行として FILE に書き込みます。</translation>
    </message>
    <message>
        <source>Skip inputs whose results are there already, from the same content, settings and version; replace results of other settings.</source>
        <translation>同じ内容、設定、バージョンによる結果がすでにある入力をスキップし、別の設定による結果は置き換えます。</translation>
    </message>
    <message>
        <source>Only the frames A to B, counted from 0, or the part K of N: with --apply, render them without sound; otherwise write the pictures that the analysis takes of them (.pictures).</source>
        <translation>フレーム A から B まで（0 から数える）、または N 分割の K 番目だけを処理します。--apply を付けると音声なしでレンダリングし、付けなければ解析に使う画像を書き出します (.pictures)。</translation>
    </message>
    <message>
        <source>The first input is a video, the others are all its parts, as --frames wrote them; the results are those of the whole video.</source>
        <translation>最初の入力は動画、残りは --frames が書き出したそのすべての部分です。結果は動画全体のものになります。</translation>
    </message>
</context>
<context>
    <name>FollowOption</name>
    <message>
        <source>the video ends after %1 s</source>
        <translation>動画は %1 秒で終わります</translation>
    </message>
    <message>
        <source>it lies outside the picture of %1x%2 pixels</source>
        <translation>%1x%2 ピクセルの画面の外です</translation>
    </message>
</context>
<context>
    <name>FoundSignals</name>
    <message>
        <source>motion</source>
        <translation>動き</translation>
    </message>
    <message>
        <source>movers</source>
        <translation>移動物</translation>
    </message>
    <message>
        <source>saliency</source>
        <translation>顕著性</translation>
    </message>
    <message>
        <source>faces</source>
        <translation>顔</translation>
    </message>
    <message>
        <source>detected</source>
        <translation>検出</translation>
    </message>
    <message>
        <source>motion: what the camera&apos;s own movement does not explain</source>
        <translation>動き: カメラの動きでは説明できないもの</translation>
    </message>
    <message>
        <source>movers: what travels through the shot, however small</source>
        <translation>移動物: ショット内を移動するもの (小さなものを含む)</translation>
    </message>
    <message>
        <source>saliency: what stands out in a still picture</source>
        <translation>顕著性: 静止画で目立つもの</translation>
    </message>
    <message>
        <source>detected: people and animals</source>
        <translation>検出: 人物と動物</translation>
    </message>
    <message>
        <source>it is not clear who speaks</source>
        <translation>誰が話しているか不明です</translation>
    </message>
    <message>
        <source>who speaks is hardly clear</source>
        <translation>誰が話しているかほとんど不明です</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>目立つものがありません</translation>
    </message>
    <message>
        <source>people or animals are in several places</source>
        <translation>人物や動物が複数の場所にいます</translation>
    </message>
    <message>
        <source>what stands out is in several places</source>
        <translation>目立つものが複数の場所にあります</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>holds who speaks</source>
        <translation>話している人に固定</translation>
    </message>
    <message>
        <source>follows who speaks</source>
        <translation>話している人に追従</translation>
    </message>
    <message>
        <source>follows who speaks, with 1 cut</source>
        <translation>話している人に追従 (カット 1 回)</translation>
    </message>
    <message numerus="yes">
        <source>follows who speaks, with %n cuts</source>
        <translation>
            <numerusform>話している人に追従 (カット %n 回)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FramesOption</name>
    <message>
        <source>its last frame is %1</source>
        <translation>最後のフレームは %1 です</translation>
    </message>
    <message>
        <source>it has %1 frames only</source>
        <translation>フレームは %1 個しかありません</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Import videos</source>
        <translation>動画を読み込む</translation>
    </message>
    <message>
        <source>Select all videos</source>
        <translation>すべての動画を選択</translation>
    </message>
    <message>
        <source>Select several videos</source>
        <translation>複数の動画を選択</translation>
    </message>
    <message>
        <source>Ctrl+Click, Shift+Click</source>
        <translation>Ctrl+クリック、Shift+クリック</translation>
    </message>
    <message>
        <source>Reframe the selected video</source>
        <translation>選択した動画をリフレーム</translation>
    </message>
    <message>
        <source>Reframe all selected videos</source>
        <translation>選択した動画をすべてリフレーム</translation>
    </message>
    <message>
        <source>Remove from the library</source>
        <translation>ライブラリから削除</translation>
    </message>
    <message>
        <source>Show this list</source>
        <translation>この一覧を表示</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Play, pause</source>
        <translation>再生、一時停止</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Previous edit point</source>
        <translation>前の編集ポイント</translation>
    </message>
    <message>
        <source>Next edit point</source>
        <translation>次の編集ポイント</translation>
    </message>
    <message>
        <source>Delete the edit point</source>
        <translation>編集ポイントを削除</translation>
    </message>
    <message>
        <source>Previous doubtful shot</source>
        <translation>前の要確認ショット</translation>
    </message>
    <message>
        <source>Next doubtful shot</source>
        <translation>次の要確認ショット</translation>
    </message>
    <message>
        <source>Move the crop by a pixel</source>
        <translation>クロップを 1 ピクセル移動</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>矢印キー</translation>
    </message>
    <message>
        <source>Move the crop by 10 pixels</source>
        <translation>クロップを 10 ピクセル移動</translation>
    </message>
    <message>
        <source>Shift+Arrow keys</source>
        <translation>Shift+矢印キー</translation>
    </message>
    <message>
        <source>Back to automatic in this shot</source>
        <translation>このショットを自動に戻す</translation>
    </message>
    <message>
        <source>Point at the middle of the crop</source>
        <translation>クロップの中央を指定</translation>
    </message>
    <message>
        <source>Remove the box</source>
        <translation>枠を削除</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>ライブラリ</translation>
    </message>
    <message>
        <source>Auto Reframe Window</source>
        <translation>Auto Reframe ウィンドウ</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>HostMediaBackend</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>%1 を開けません: 動画の映像がありません。</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeDialog</name>
    <message>
        <source>AutoReframe_Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Analysis error. Please try again.</source>
        <translation>解析エラーです。もう一度お試しください。</translation>
    </message>
    <message>
        <source>This video is too short. Please try a different video.</source>
        <translation>この動画は短すぎます。別の動画をお試しください。</translation>
    </message>
    <message>
        <source>You&apos;ve chosen the same aspect ratio as the original video. Please select a different aspect ratio.</source>
        <translation>元の動画と同じアスペクト比が選択されています。別のアスペクト比を選択してください。</translation>
    </message>
    <message>
        <source>Converting video. Please wait...</source>
        <translation>動画を変換しています。お待ちください...</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>終了してもよろしいですか？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>All supported files(%1;);</source>
        <translation>対応するすべてのファイル(%1;);</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Unknown error, please try again</source>
        <translation>不明なエラーです。もう一度お試しください</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeExportDlg</name>
    <message>
        <source>Export to MP4</source>
        <translation>MP4 に書き出し</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>保存先:</translation>
    </message>
    <message>
        <source>Please make sure you have selected a valid folder.</source>
        <translation>有効なフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Please check write permission, or choose another path to continue.</source>
        <translation>書き込み権限を確認するか、別の場所を選択してください。</translation>
    </message>
    <message>
        <source>The outputted file path is too long, please choose another path to continue.</source>
        <translation>出力ファイルのパスが長すぎます。別の場所を選択してください。</translation>
    </message>
    <message>
        <source>There is not enough space in the specified output directory, please choose another one.
Dise Space needed :%1 MB, remaining:%2 MB.</source>
        <translation>出力フォルダーの空き容量が足りません。別のフォルダーを選択してください。
必要な容量: %1 MB、空き容量: %2 MB。</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePlayerControlBar</name>
    <message>
        <source>Backward (%1)</source>
        <translation>戻る (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>進む (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>停止 (%1)</translation>
    </message>
    <message>
        <source>Play (%1)</source>
        <translation>再生 (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>一時停止 (%1)</translation>
    </message>
    <message>
        <source>Undo (%1)</source>
        <translation>元に戻す (%1)</translation>
    </message>
    <message>
        <source>Redo (%1)</source>
        <translation>やり直す (%1)</translation>
    </message>
    <message>
        <source>Delete (%1)</source>
        <translation>削除 (%1)</translation>
    </message>
    <message>
        <source>Previous Edit Point (%1)</source>
        <translation>前の編集ポイント (%1)</translation>
    </message>
    <message>
        <source>Next Edit Point (%1)</source>
        <translation>次の編集ポイント (%1)</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePropertyPanel</name>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>高速</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>低速</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Replace File</source>
        <translation>ファイルを置き換え</translation>
    </message>
    <message>
        <source>Adjust Frame</source>
        <translation>フレームを調整</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>アスペクト比</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>動きの速度</translation>
    </message>
    <message>
        <source>Analyze</source>
        <translation>解析</translation>
    </message>
    <message>
        <source>AutoReframe_Restart</source>
        <translation>再解析</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
</context>
<context>
    <name>KrCropKeys</name>
    <message>
        <source>Picture</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>The arrow keys move the crop, with Shift in larger steps.</source>
        <translation>矢印キーでクロップを移動します。Shift キーを押すと大きく移動します。</translation>
    </message>
</context>
<context>
    <name>KrDialogExtension</name>
    <message>
        <source>The crop follows your choice</source>
        <translation>クロップは選択した対象に追従します</translation>
    </message>
    <message>
        <source>The crop avoids your choice</source>
        <translation>クロップは選択した対象を避けます</translation>
    </message>
    <message>
        <source>The crop is held</source>
        <translation>クロップは固定されています</translation>
    </message>
    <message>
        <source>The whole picture is shown</source>
        <translation>画面全体が表示されます</translation>
    </message>
    <message>
        <source>The analysis decides</source>
        <translation>解析結果に従います</translation>
    </message>
    <message>
        <source>Lost from %1: point again</source>
        <translation>%1 から見失いました: もう一度指定してください</translation>
    </message>
    <message>
        <source>Perhaps lost from %1: look, and point again</source>
        <translation>%1 から見失った可能性があります: 確認して、もう一度指定してください</translation>
    </message>
    <message>
        <source>Settings changed: analyze again</source>
        <translation>設定が変わりました: 再解析</translation>
    </message>
    <message numerus="yes">
        <source>%n choices are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n 件の指定は保持されますが、この編集版にはありません</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n choices were moved to where their pictures are</source>
        <translation>
            <numerusform>%n 件の指定を画像のある位置に移動しました</numerusform>
        </translation>
    </message>
    <message>
        <source>Following: %1 %</source>
        <translation>追従中: %1%</translation>
    </message>
    <message>
        <source>Your edit stays here</source>
        <translation>ここでは編集が優先されます</translation>
    </message>
</context>
<context>
    <name>KrDoubtfulShots</name>
    <message>
        <source>Previous Doubtful Shot (%1)</source>
        <translation>前の要確認ショット (%1)</translation>
    </message>
    <message>
        <source>Next Doubtful Shot (%1)</source>
        <translation>次の要確認ショット (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n shots to look at</source>
        <translation>
            <numerusform>要確認ショット %1 / %n</numerusform>
        </translation>
    </message>
    <message>
        <source>All doubtful shots seen</source>
        <translation>要確認ショットはすべて確認済み</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>ショット %1 / %2</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>目立つものがありません</translation>
    </message>
    <message>
        <source>what stands out is in several places, far apart</source>
        <translation>目立つものが離れた複数の場所にあります</translation>
    </message>
    <message>
        <source>several people or animals, far apart</source>
        <translation>離れた場所に複数の人物や動物がいます</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>KrEditPictures</name>
    <message numerus="yes">
        <source>%n edit points are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n 個の編集ポイントは保持されますが、この編集版にはありません</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit points were moved to where their pictures are</source>
        <translation>
            <numerusform>%n 個の編集ポイントを画像のある位置に移動しました</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KrExportStatus</name>
    <message>
        <source>Progress of the export</source>
        <translation>書き出しの進行状況</translation>
    </message>
    <message>
        <source>The size of the exported video in pixels.</source>
        <translation>書き出す動画のサイズ (ピクセル) です。</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーで表示</translation>
    </message>
    <message>
        <source>Opens the folder of the exported video.</source>
        <translation>書き出した動画のフォルダーを開きます。</translation>
    </message>
    <message>
        <source>Output: %1 × %2</source>
        <translation>出力: %1 × %2</translation>
    </message>
    <message>
        <source>Waiting in the export queue</source>
        <translation>書き出しキューで待機中</translation>
    </message>
    <message>
        <source>Exporting: %1 %</source>
        <translation>書き出し中: %1%</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>書き出し完了</translation>
    </message>
    <message>
        <source>Export cancelled</source>
        <translation>書き出しをキャンセルしました</translation>
    </message>
    <message>
        <source>Output: %1 × %2, enlarged</source>
        <translation>出力: %1 × %2 (拡大)</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>The size in which the video is exported.</source>
        <translation>動画を書き出すサイズです。</translation>
    </message>
</context>
<context>
    <name>KrFollowControls</name>
    <message>
        <source>This looks like background</source>
        <translation>背景のようです</translation>
    </message>
    <message>
        <source>Hold the Crop Here in This Shot</source>
        <translation>このショットではここにクロップを固定</translation>
    </message>
    <message>
        <source>Follow This Anyway</source>
        <translation>それでもこれに追従</translation>
    </message>
    <message>
        <source>Follow This</source>
        <translation>これに追従</translation>
    </message>
    <message>
        <source>Not This</source>
        <translation>これではない</translation>
    </message>
    <message>
        <source>Hold the Crop in This Shot</source>
        <translation>このショットではクロップを固定</translation>
    </message>
    <message>
        <source>Show the Whole Picture in This Shot</source>
        <translation>このショットでは画面全体を表示</translation>
    </message>
    <message>
        <source>Back to Automatic</source>
        <translation>自動に戻す</translation>
    </message>
</context>
<context>
    <name>KrMessageDialog</name>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>KrRatioComparison</name>
    <message>
        <source>Compare Aspect Ratios</source>
        <translation>アスペクト比を比較</translation>
    </message>
</context>
<context>
    <name>KrRatioPane</name>
    <message>
        <source>Result in %1:%2</source>
        <translation>%1:%2 の結果</translation>
    </message>
    <message>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
    <message>
        <source>%1 · finding the crop…</source>
        <translation>%1 · クロップを検索中…</translation>
    </message>
    <message>
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message>
        <source>%1 · analyze the video again</source>
        <translation>%1 · 再解析が必要です</translation>
    </message>
</context>
<context>
    <name>KrViewMenu</name>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Safe Zones</source>
        <translation>セーフゾーン</translation>
    </message>
    <message>
        <source>Dims what players of vertical videos cover with texts and buttons. For 9:16 only.</source>
        <translation>縦型動画のプレーヤーが文字やボタンで隠す部分を暗くします。9:16 のみ。</translation>
    </message>
    <message>
        <source>Thirds</source>
        <translation>三分割</translation>
    </message>
    <message>
        <source>A grid that divides the result into thirds.</source>
        <translation>結果を三分割するグリッドです。</translation>
    </message>
    <message>
        <source>Headroom</source>
        <translation>ヘッドルーム</translation>
    </message>
    <message>
        <source>The band in which the top of a head belongs.</source>
        <translation>頭頂部が入るべき帯です。</translation>
    </message>
    <message>
        <source>Compare Aspect Ratios…</source>
        <translation>アスペクト比を比較…</translation>
    </message>
    <message>
        <source>Shows the results of several aspect ratios side by side.</source>
        <translation>複数のアスペクト比の結果を並べて表示します。</translation>
    </message>
</context>
<context>
    <name>KxAacEncoder</name>
    <message>
        <source>the AAC encoder is missing</source>
        <translation>AAC エンコーダーがありません</translation>
    </message>
    <message>
        <source>sound of %1 Hz and %2 channels is not supported</source>
        <translation>%1 Hz、%2 チャンネルの音声には対応していません</translation>
    </message>
    <message>
        <source>the sound encoder does not start (%1)</source>
        <translation>音声エンコーダーが起動しません (%1)</translation>
    </message>
</context>
<context>
    <name>KxAudioReader</name>
    <message>
        <source>it has no such sound track</source>
        <translation>その音声トラックはありません</translation>
    </message>
</context>
<context>
    <name>KxAudioTrack</name>
    <message>
        <source>its sound format (%1) is not supported</source>
        <translation>音声形式 (%1) に対応していません</translation>
    </message>
    <message>
        <source>its sound is damaged</source>
        <translation>音声が破損しています</translation>
    </message>
</context>
<context>
    <name>KxAutoReframeService</name>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>%1 を解析できません: %2。</translation>
    </message>
    <message>
        <source>the stored choices</source>
        <translation>保存された指定</translation>
    </message>
</context>
<context>
    <name>KxAvError</name>
    <message>
        <source>it was cancelled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>it ends too early</source>
        <translation>途中で終わっています</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>破損しています</translation>
    </message>
    <message>
        <source>its format is not supported</source>
        <translation>形式に対応していません</translation>
    </message>
</context>
<context>
    <name>KxCacheFolder</name>
    <message>
        <source>Cannot make the cache folder %1: %2.</source>
        <translation>キャッシュフォルダー %1 を作成できません: %2。</translation>
    </message>
</context>
<context>
    <name>KxChoicesFormat</name>
    <message>
        <source>Cannot use %1: %2.</source>
        <translation>%1 を使用できません: %2。</translation>
    </message>
    <message>
        <source>choice %1 has no valid time (&quot;%2&quot;), in seconds</source>
        <translation>指定 %1 に有効な時間 (「%2」、秒) がありません</translation>
    </message>
    <message>
        <source>choice %1 has &quot;%2&quot; that are no list</source>
        <translation>指定 %1 の「%2」がリストではありません</translation>
    </message>
    <message>
        <source>it has more than %1 seeds and boxes</source>
        <translation>シードと枠が %1 個を超えています</translation>
    </message>
    <message>
        <source>choice %1 has a box that is not left, top, width and height in fractions of the picture</source>
        <translation>指定 %1 の枠が、画面に対する割合の左、上、幅、高さになっていません</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;seeds&quot; that show what it means</source>
        <translation>指定 %1 に対象を示す「seeds」がありません</translation>
    </message>
    <message>
        <source>choice %1 has more than %2 &quot;pictures&quot;</source>
        <translation>指定 %1 の「pictures」が %2 個を超えています</translation>
    </message>
    <message>
        <source>choice %1 has &quot;pictures&quot; that are not times with 16 hexadecimal digits</source>
        <translation>指定 %1 の「pictures」が 16 桁の 16 進数付きの時間ではありません</translation>
    </message>
    <message>
        <source>choice %1 has no known &quot;kind&quot;; it is follow, avoid, hold, fit or automatic</source>
        <translation>指定 %1 の「kind」が不明です。follow、avoid、hold、fit、automatic のいずれかです</translation>
    </message>
    <message>
        <source>choice %1 ends before it begins</source>
        <translation>指定 %1 は開始前に終了しています</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;centre&quot; in fractions of the picture</source>
        <translation>指定 %1 に画面に対する割合の「centre」がありません</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
    <message>
        <source>it is no list of choices (JSON, byte %1)</source>
        <translation>指定のリストではありません (JSON、%1 バイト目)</translation>
    </message>
    <message>
        <source>it is of version %1, and this program reads version %2</source>
        <translation>バージョン %1 です。このプログラムが読み込めるのはバージョン %2 です</translation>
    </message>
    <message>
        <source>it has no &quot;version&quot;</source>
        <translation>「version」がありません</translation>
    </message>
    <message>
        <source>it has no list of &quot;choices&quot;</source>
        <translation>「choices」のリストがありません</translation>
    </message>
    <message>
        <source>it has more than %1 choices</source>
        <translation>指定が %1 個を超えています</translation>
    </message>
    <message>
        <source>Cannot open %1: it is not a regular file.</source>
        <translation>%1 を開けません: 通常のファイルではありません。</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 を開けません: %2。</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 を読み込めません: %2。</translation>
    </message>
</context>
<context>
    <name>KxDetectorFiles</name>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>読み込めません</translation>
    </message>
    <message>
        <source>it is too large for a detector</source>
        <translation>検出器としては大きすぎます</translation>
    </message>
    <message>
        <source>its checksum is unknown (no SHA256SUMS beside it names the file)</source>
        <translation>チェックサムが不明です (同じ場所の SHA256SUMS に記載がありません)</translation>
    </message>
    <message>
        <source>it is damaged (SHA256SUMS has another checksum)</source>
        <translation>破損しています (SHA256SUMS のチェックサムと異なります)</translation>
    </message>
    <message>
        <source>Cannot use the detector %1: %2.</source>
        <translation>検出器 %1 を使用できません: %2。</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>そのフォルダーはありません</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>it has neither %1 nor %2</source>
        <translation>%1 も %2 もありません</translation>
    </message>
    <message>
        <source>Cannot use the models in %1: %2.</source>
        <translation>%1 のモデルを使用できません: %2。</translation>
    </message>
    <message>
        <source>The detector of people and animals is not installed; the analysis works without it.</source>
        <translation>人物と動物の検出器はインストールされていません。解析はなくても動作します。</translation>
    </message>
    <message>
        <source>it is not NanoDet-g as OpenCV can run it</source>
        <translation>OpenCV で実行できる NanoDet-g ではありません</translation>
    </message>
    <message>
        <source>it is not a face detector that OpenCV can run</source>
        <translation>OpenCV で実行できる顔検出器ではありません</translation>
    </message>
</context>
<context>
    <name>KxEncoderProof</name>
    <message>
        <source>there is nothing to compare it with</source>
        <translation>比較する対象がありません</translation>
    </message>
    <message>
        <source>of %1 pictures it wrote %2</source>
        <translation>%1 枚のうち %2 枚だけ書き込まれました</translation>
    </message>
    <message>
        <source>its pictures have another size or format</source>
        <translation>画像のサイズまたは形式が異なります</translation>
    </message>
    <message>
        <source>its picture %1 differs too much (%2 dB, %3 are needed)</source>
        <translation>画像 %1 の差が大きすぎます (%2 dB、%3 dB 必要)</translation>
    </message>
</context>
<context>
    <name>KxFittedCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>画像を切り抜けません: 切り抜く矩形が空です。</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>画像を切り抜けません: メモリが足りません。</translation>
    </message>
</context>
<context>
    <name>KxFollowPass</name>
    <message>
        <source>Cannot follow in %1: %2.</source>
        <translation>%1 で追従できません: %2。</translation>
    </message>
</context>
<context>
    <name>KxFrameCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>画像を切り抜けません: 切り抜く矩形が空です。</translation>
    </message>
    <message>
        <source>Cannot cut a picture: its pixel format &quot;%1&quot; cannot be converted.</source>
        <translation>画像を切り抜けません: ピクセル形式「%1」を変換できません。</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>画像を切り抜けません: メモリが足りません。</translation>
    </message>
    <message>
        <source>Cannot cut a picture: it cannot be scaled from %1 x %2 to %3 x %4.</source>
        <translation>画像を切り抜けません: %1 x %2 から %3 x %4 に拡大縮小できません。</translation>
    </message>
</context>
<context>
    <name>KxInputFile</name>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>動画ではなく 1 枚の画像です</translation>
    </message>
    <message>
        <source>it is a list of other files, not a video</source>
        <translation>動画ではなく他のファイルのリストです</translation>
    </message>
    <message>
        <source>it is not a video file</source>
        <translation>動画ファイルではありません</translation>
    </message>
    <message>
        <source>it has more than %1 streams</source>
        <translation>ストリームが %1 個を超えています</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 を開けません: %2。</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>読み込みに時間がかかりすぎています</translation>
    </message>
    <message>
        <source>it is damaged or incomplete</source>
        <translation>破損しているか不完全です</translation>
    </message>
    <message>
        <source>it is a link to a file that does not exist</source>
        <translation>存在しないファイルへのリンクです</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>そのファイルはありません</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>its pictures are too large (%1 x %2)</source>
        <translation>画像が大きすぎます (%1 x %2)</translation>
    </message>
    <message>
        <source>it has sound but no moving picture</source>
        <translation>音声はありますが動画の映像がありません</translation>
    </message>
    <message>
        <source>it has no moving picture</source>
        <translation>動画の映像がありません</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8; rename it</source>
        <translation>名前が有効な UTF-8 ではありません。名前を変更してください</translation>
    </message>
</context>
<context>
    <name>KxJoinedPictures</name>
    <message>
        <source>%1 does not hold pictures of a part of this video</source>
        <translation>%1 にはこの動画の一部の画像がありません</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 は壊れています</translation>
    </message>
    <message>
        <source>%1 begins with other pictures than the part before ends with; analyse the video as a whole</source>
        <translation>%1 の最初の画像が前の部分の最後の画像と異なります。動画全体を解析してください</translation>
    </message>
</context>
<context>
    <name>KxLanguage</name>
    <message>
        <source>Language of the texts: %1. Otherwise that of the system.</source>
        <translation>表示言語: %1。指定しない場合はシステムの言語です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an available language; choose one of %2.</source>
        <translation>「%1」は利用できない言語です。%2 から選択してください。</translation>
    </message>
</context>
<context>
    <name>KxMediaLibraryUtils</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>%1 を開けません: 動画の映像がありません。</translation>
    </message>
</context>
<context>
    <name>KxMediaPlayerPresenter</name>
    <message>
        <source>Cannot show the timeline: it holds no video.</source>
        <translation>タイムラインを表示できません: 動画が含まれていません。</translation>
    </message>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>%1 を表示できません: %2。</translation>
    </message>
    <message>
        <source>its pictures cannot be decoded</source>
        <translation>映像をデコードできません</translation>
    </message>
</context>
<context>
    <name>KxMessageBox</name>
    <message>
        <source>Do not show this again</source>
        <translation>次回から表示しない</translation>
    </message>
</context>
<context>
    <name>KxMp4Writer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 に書き込めません: %2。</translation>
    </message>
    <message>
        <source>pictures of %1 x %2 pixels cannot be encoded; both have to be even</source>
        <translation>%1 x %2 ピクセルの画像はエンコードできません。どちらも偶数にしてください</translation>
    </message>
    <message>
        <source>the frame rate is unknown</source>
        <translation>フレームレートが不明です</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>書き込む画像がありません</translation>
    </message>
</context>
<context>
    <name>KxOpenFileLineEdit</name>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>フォルダーを選択</translation>
    </message>
</context>
<context>
    <name>KxOpenFileName</name>
    <message>
        <source>All files(%1)</source>
        <translation>すべてのファイル(%1)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
</context>
<context>
    <name>KxOutputFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 に書き込めません: %2。</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>no free name was found in its folder</source>
        <translation>フォルダーに空いている名前が見つかりませんでした</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>フォルダー %1 は存在しません</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 はフォルダーではありません</translation>
    </message>
</context>
<context>
    <name>KxOutputSize</name>
    <message>
        <source>the size %1 x %2 does not have the shape of the crop; %1 x %3 does</source>
        <translation>サイズ %1 x %2 はクロップの形と異なります。%1 x %3 なら一致します</translation>
    </message>
</context>
<context>
    <name>KxPictureFeed</name>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>%1 をレンダリングできません: %2。</translation>
    </message>
    <message>
        <source>Cannot render %1 at frame %2. %3</source>
        <translation>%1 のフレーム %2 をレンダリングできません。%3</translation>
    </message>
    <message>
        <source>Memory ran out.</source>
        <translation>メモリが足りません。</translation>
    </message>
</context>
<context>
    <name>KxPictureFilter</name>
    <message>
        <source>it yields no picture</source>
        <translation>画像が得られません</translation>
    </message>
</context>
<context>
    <name>KxPicturesFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 を書き込めません: %2。</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 は途中で切れているか破損しています: 一部だけデコードできます。</translation>
    </message>
</context>
<context>
    <name>KxPlayerToolBarBase</name>
    <message>
        <source>Play (%1)</source>
        <translation>再生 (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>一時停止 (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>停止 (%1)</translation>
    </message>
    <message>
        <source>Backward (%1)</source>
        <translation>戻る (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>進む (%1)</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>再生または一時停止</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
</context>
<context>
    <name>KxProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>KxRenderSound</name>
    <message>
        <source>The sound is silent; its loudness is not changed.</source>
        <translation>音声は無音です。ラウドネスは変更されません。</translation>
    </message>
    <message>
        <source>The loudness of the sound is not changed: %1.</source>
        <translation>音声のラウドネスは変更されません: %1。</translation>
    </message>
    <message>
        <source>The sound is encoded again: %1.</source>
        <translation>音声を再エンコードします: %1。</translation>
    </message>
    <message>
        <source>The sound is left out. %1</source>
        <translation>音声は含まれません。%1</translation>
    </message>
</context>
<context>
    <name>KxRenderSource</name>
    <message>
        <source>Cannot render the timeline: it shows no file.</source>
        <translation>タイムラインをレンダリングできません: ファイルがありません。</translation>
    </message>
</context>
<context>
    <name>KxRenderer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 に書き込めません: %2。</translation>
    </message>
    <message>
        <source>a resolution of %1 x %2 is not possible</source>
        <translation>解像度 %1 x %2 には対応していません</translation>
    </message>
    <message>
        <source>it is the very file that is rendered</source>
        <translation>レンダリング中のファイルそのものです</translation>
    </message>
    <message>
        <source>Cannot render %1: it is damaged.</source>
        <translation>%1 をレンダリングできません: 破損しています。</translation>
    </message>
    <message>
        <source>%1 is damaged or incomplete: only %2 of %3 frames could be rendered.</source>
        <translation>%1 は破損しているか不完全です: %3 フレームのうち %2 フレームだけをレンダリングしました。</translation>
    </message>
    <message>
        <source>The sound of %1 is damaged and ends early.</source>
        <translation>%1 の音声は破損しており、途中で終わります。</translation>
    </message>
    <message>
        <source>%1 frames a second are not possible</source>
        <translation>毎秒 %1 フレームには対応していません</translation>
    </message>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>%1 をレンダリングできません: %2。</translation>
    </message>
    <message>
        <source>its parts have %1 of %2 frames</source>
        <translation>部分のフレームは %2 個中 %1 個です</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>書き込む画像がありません</translation>
    </message>
</context>
<context>
    <name>KxSoundPackets</name>
    <message>
        <source>the time stamps of the file jump</source>
        <translation>ファイルのタイムスタンプが飛んでいます</translation>
    </message>
    <message>
        <source>there is no such sound track</source>
        <translation>その音声トラックはありません</translation>
    </message>
    <message>
        <source>MP4 cannot hold %1</source>
        <translation>MP4 には %1 を格納できません</translation>
    </message>
</context>
<context>
    <name>KxSystemError</name>
    <message>
        <source>the file would become too large for its disk</source>
        <translation>ファイルがディスクの上限を超えます</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>そのファイルはありません</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>ディスクは読み取り専用です</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>ディスクがエラーを報告しました</translation>
    </message>
    <message>
        <source>memory ran out</source>
        <translation>メモリが足りません</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>名前が長すぎます</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>its reader has gone</source>
        <translation>読み取り側が終了しました</translation>
    </message>
    <message>
        <source>it is in use</source>
        <translation>使用中です</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>ディスクがいっぱいです</translation>
    </message>
</context>
<context>
    <name>KxSystemFile</name>
    <message>
        <source>another program has it open</source>
        <translation>別のプログラムが開いています</translation>
    </message>
</context>
<context>
    <name>KxThread</name>
    <message>
        <source>memory ran out</source>
        <translation>メモリが足りません</translation>
    </message>
    <message>
        <source>an unknown error occurred</source>
        <translation>不明なエラーが発生しました</translation>
    </message>
</context>
<context>
    <name>KxThumbnailPicture</name>
    <message>
        <source>Cannot show %1: no picture could be read.</source>
        <translation>%1 を表示できません: 画像を読み込めませんでした。</translation>
    </message>
</context>
<context>
    <name>KxThumbnailer</name>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>%1 を表示できません: %2。</translation>
    </message>
</context>
<context>
    <name>KxToneMapper</name>
    <message>
        <source>Cannot convert a picture of high dynamic range: %1.</source>
        <translation>ハイダイナミックレンジの画像を変換できません: %1。</translation>
    </message>
</context>
<context>
    <name>KxTopLevelWindowTitleBar</name>
    <message>
        <source>Restore</source>
        <translation>元のサイズに戻す</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>KxVideoAnalysis</name>
    <message>
        <source>Choice %1 is applied %2 s earlier, where its pictures are in %3.</source>
        <translation>指定 %1 は %2 秒早い、%3 内の画像のある位置に適用されます。</translation>
    </message>
    <message>
        <source>Choice %1 is applied %2 s later, where its pictures are in %3.</source>
        <translation>指定 %1 は %2 秒遅い、%3 内の画像のある位置に適用されます。</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its pictures are not in %2.</source>
        <translation>指定 %1 は適用されません: その画像が %2 にありません。</translation>
    </message>
    <message>
        <source>The aspect ratio %1:%2 has a side that is not positive.</source>
        <translation>アスペクト比 %1:%2 に正でない辺があります。</translation>
    </message>
    <message>
        <source>Cannot analyse %1: its time stamps span %2 frames, the limit is %3.</source>
        <translation>%1 を解析できません: タイムスタンプが %2 フレームに及びます。上限は %3 です。</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>%1 を解析できません: %2。</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 は途中で切れているか破損しています: 一部だけデコードできます。</translation>
    </message>
    <message>
        <source>What is followed is lost from %1 s to %2 s: point at it again there.</source>
        <translation>追従対象を %1 秒から %2 秒まで見失いました: そこでもう一度指定してください。</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its time is outside of %2.</source>
        <translation>指定 %1 は適用されません: その時間は %2 の範囲外です。</translation>
    </message>
</context>
<context>
    <name>KxVideoDecoder</name>
    <message>
        <source>its video format (%1) is not supported</source>
        <translation>動画形式 (%1) に対応していません</translation>
    </message>
    <message>
        <source>its video stream is damaged</source>
        <translation>動画ストリームが破損しています</translation>
    </message>
</context>
<context>
    <name>KxVideoEncoder</name>
    <message>
        <source>the video encoder %1 is missing</source>
        <translation>動画エンコーダー %1 がありません</translation>
    </message>
    <message>
        <source>the video encoder %1 does not start (%2)</source>
        <translation>動画エンコーダー %1 が起動しません (%2)</translation>
    </message>
</context>
<context>
    <name>KxVideoPart</name>
    <message>
        <source>it has no picture</source>
        <translation>画像がありません</translation>
    </message>
</context>
<context>
    <name>KxVideoParts</name>
    <message>
        <source>Cannot join %1 to %2: it was encoded in another way.</source>
        <translation>%1 を %2 に結合できません: エンコード方法が異なります。</translation>
    </message>
    <message>
        <source>Cannot join %1: its time stamps are damaged.</source>
        <translation>%1 を結合できません: タイムスタンプが壊れています。</translation>
    </message>
    <message>
        <source>Cannot join %1: it is damaged.</source>
        <translation>%1 を結合できません: ファイルが壊れています。</translation>
    </message>
</context>
<context>
    <name>KxVideoSource</name>
    <message>
        <source>it was cancelled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>破損しています</translation>
    </message>
    <message>
        <source>no picture of it can be decoded, it is damaged</source>
        <translation>デコードできる画像がなく、破損しています</translation>
    </message>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>動画ではなく 1 枚の画像です</translation>
    </message>
    <message>
        <source>it cannot be read from the start again</source>
        <translation>先頭からもう一度読み込むことができません</translation>
    </message>
    <message>
        <source>its time stamps are damaged</source>
        <translation>タイムスタンプが破損しています</translation>
    </message>
</context>
<context>
    <name>KxWindowsNames</name>
    <message>
        <source>its name contains a control character</source>
        <translation>名前に制御文字が含まれています</translation>
    </message>
    <message>
        <source>a name cannot contain the character %1</source>
        <translation>名前に文字 %1 は使用できません</translation>
    </message>
    <message>
        <source>%1 is the name of a device</source>
        <translation>%1 はデバイスの名前です</translation>
    </message>
    <message>
        <source>a name cannot end with a dot or a space</source>
        <translation>名前の末尾にピリオドやスペースは使用できません</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>名前が長すぎます</translation>
    </message>
</context>
<context>
    <name>LibraryConnection</name>
    <message>
        <source>another program is using it</source>
        <translation>別のプログラムが使用しています</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>書き込み禁止です</translation>
    </message>
    <message>
        <source>the disk cannot be read or written</source>
        <translation>ディスクを読み書きできません</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>破損しています</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>ディスクがいっぱいです</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>開けません</translation>
    </message>
</context>
<context>
    <name>LibraryOpening</name>
    <message>
        <source>Cannot open the library %1: %2. What you do now is not saved.</source>
        <translation>ライブラリ %1 を開けません: %2。これからの操作は保存されません。</translation>
    </message>
    <message>
        <source>its backup %1 cannot be written</source>
        <translation>バックアップ %1 を書き込めません</translation>
    </message>
    <message>
        <source>it was written by a newer version of this program</source>
        <translation>このプログラムの新しいバージョンで作成されています</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>フォルダーを作成できません</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>another program is opening it</source>
        <translation>別のプログラムが開いているところです</translation>
    </message>
    <message>
        <source>its folder cannot be written to</source>
        <translation>フォルダーに書き込めません</translation>
    </message>
    <message>
        <source>it is damaged, and it cannot be renamed</source>
        <translation>破損しており、名前を変更できません</translation>
    </message>
    <message>
        <source>The library was damaged. It was renamed to %1, and a new one was begun.</source>
        <translation>ライブラリが破損していました。名前を %1 に変更し、新しいライブラリを作成しました。</translation>
    </message>
</context>
<context>
    <name>LibraryStore</name>
    <message>
        <source>Cannot read the library %1: %2. What you do now is not saved.</source>
        <translation>ライブラリ %1 を読み込めません: %2。これからの操作は保存されません。</translation>
    </message>
    <message>
        <source>Cannot save the library %1: %2.</source>
        <translation>ライブラリ %1 を保存できません: %2。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%n files that are no videos were skipped</source>
        <translation>
            <numerusform>動画ではないファイル %n 個をスキップしました</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>読み込み…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>すべてリフレーム…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Add videos to the library</source>
        <translation>ライブラリに動画を追加します</translation>
    </message>
    <message>
        <source>Reframe all selected videos without looking at each</source>
        <translation>選択した動画を 1 本ずつ確認せずにすべてリフレームします</translation>
    </message>
    <message>
        <source>Reframe the selected videos one after the other</source>
        <translation>選択した動画を順にリフレームします</translation>
    </message>
    <message>
        <source>No videos yet</source>
        <translation>動画はまだありません</translation>
    </message>
    <message numerus="yes">
        <source>%n videos</source>
        <translation>
            <numerusform>動画 %n 本</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n 本選択中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n exports are not finished. They are cancelled when you quit.</source>
        <translation>
            <numerusform>%n 件の書き出しが完了していません。終了するとキャンセルされます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <translation>書き出しを続ける</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>All supported files</source>
        <translation>対応するすべてのファイル</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>フォルダーを読み込み</translation>
    </message>
    <message>
        <source>Import Folder…</source>
        <translation>フォルダーを読み込み…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>最近使った項目を開く</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>クロップトラックを保存…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>クロップトラックを開く…</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>About Auto Reframe</source>
        <translation>Auto Reframe について</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… 他 %n 件。</numerusform>
        </translation>
    </message>
    <message>
        <source>Find %1</source>
        <translation>%1 を探す</translation>
    </message>
    <message>
        <source>The content of this file differs from that of %1.</source>
        <translation>このファイルの内容は %1 と異なります。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Use This File</source>
        <translation>このファイルを使う</translation>
    </message>
    <message>
        <source>Your edits are kept, but may not fit this file.</source>
        <translation>編集内容は保持されますが、このファイルには合わない場合があります。</translation>
    </message>
    <message>
        <source>This computer may be too slow for the analysis. To try anyway, start it again.</source>
        <translation>このコンピューターは解析には遅すぎる可能性があります。それでも試すには、もう一度開始してください。</translation>
    </message>
    <message>
        <source>Continue with %1?</source>
        <translation>%1 に進みますか？</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message numerus="yes">
        <source>%n selected videos are left.</source>
        <translation>
            <numerusform>選択した動画はあと %n 本です。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is no longer in the library. Import it to look at its shots.</source>
        <translation>%1 はライブラリにありません。ショットを見るには読み込んでください。</translation>
    </message>
    <message>
        <source>Language of the System</source>
        <translation>システムの言語</translation>
    </message>
    <message>
        <source>The crop track was saved.</source>
        <translation>クロップトラックを保存しました。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーで表示</translation>
    </message>
    <message>
        <source>Open Crop Track</source>
        <translation>クロップトラックを開く</translation>
    </message>
    <message>
        <source>Crop tracks</source>
        <translation>クロップトラック</translation>
    </message>
    <message>
        <source>The file for %1 was saved.</source>
        <translation>%1 用のファイルを保存しました。</translation>
    </message>
</context>
<context>
    <name>MediaBackendLoader</name>
    <message>
        <source>Cannot load the video engine: %1.</source>
        <translation>動画エンジンを読み込めません: %1。</translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>There are no videos in %1.</source>
        <translation>%1 に動画はありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n videos in %1 were left out: their names are not valid UTF-8. Rename them.</source>
        <translation>
            <numerusform>%1 の動画 %n 本を除外しました。名前が有効な UTF-8 ではありません。名前を変更してください。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaLibraryModel</name>
    <message>
        <source>Drop videos here</source>
        <translation>ここに動画をドロップ</translation>
    </message>
    <message>
        <source>%1 was not found. Right-click to find it.</source>
        <translation>%1 が見つかりません。右クリックで探せます。</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>開いています…</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
</context>
<context>
    <name>MediaLibraryView</name>
    <message>
        <source>Videos</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Find File…</source>
        <translation>ファイルを探す…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>すべてリフレーム…</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>クロップトラックを保存…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>クロップトラックを開く…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーで表示</translation>
    </message>
    <message>
        <source>Remove from Library</source>
        <translation>ライブラリから削除</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>読み込み…</translation>
    </message>
    <message>
        <source>Drop videos here</source>
        <translation>ここに動画をドロップ</translation>
    </message>
    <message>
        <source>or click to choose files</source>
        <translation>またはクリックしてファイルを選択</translation>
    </message>
</context>
<context>
    <name>MediaLoader</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>%1 を開けません: %2。</translation>
    </message>
</context>
<context>
    <name>MediaText</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>残り %1 秒</translation>
    </message>
    <message>
        <source>%1 min %2 s left</source>
        <translation>残り %1 分 %2 秒</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>残り %1 時間 %2 分</translation>
    </message>
    <message numerus="yes">
        <source>%n of your edits are not in this cut of the video</source>
        <translation>
            <numerusform>%n 件の編集がこの編集版にはありません</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OutputNames</name>
    <message>
        <source>There is no %1. Use %2.</source>
        <translation>%1 はありません。%2 を使ってください。</translation>
    </message>
    <message>
        <source>Enter a file name.</source>
        <translation>ファイル名を入力してください。</translation>
    </message>
</context>
<context>
    <name>OutputOptions</name>
    <message>
        <source>--size takes even numbers up to 16384 such as 1080x1920, or a height such as 1920p; &quot;%1&quot; is neither.</source>
        <translation>--size には 1080x1920 のような 16384 以下の偶数、または 1920p のような高さを指定します。「%1」はどちらでもありません。</translation>
    </message>
    <message>
        <source>--fps takes a number from 1 to 240; &quot;%1&quot; is none.</source>
        <translation>--fps には 1 から 240 の数を指定します。「%1」は使用できません。</translation>
    </message>
    <message>
        <source>--quality takes a number from 0 to 100; &quot;%1&quot; is none.</source>
        <translation>--quality には 0 から 100 の数を指定します。「%1」は使用できません。</translation>
    </message>
    <message>
        <source>--bitrate takes bits a second from 10k to 300M; &quot;%1&quot; are none.</source>
        <translation>--bitrate には 10k から 300M のビット/秒を指定します。「%1」は使用できません。</translation>
    </message>
    <message>
        <source>--codec takes h264, hevc or av1; &quot;%1&quot; is none of them.</source>
        <translation>--codec には h264、hevc、av1 を指定します。「%1」は使用できません。</translation>
    </message>
    <message>
        <source>--encoder takes auto, software, vaapi, nvenc or qsv; &quot;%1&quot; is none of them.</source>
        <translation>--encoder には auto、software、vaapi、nvenc、qsv を指定します。「%1」は使用できません。</translation>
    </message>
    <message>
        <source>--hdr takes keep or tonemap; &quot;%1&quot; is neither.</source>
        <translation>--hdr には keep または tonemap を指定します。「%1」はどちらでもありません。</translation>
    </message>
    <message>
        <source>--sound takes copy or encode; &quot;%1&quot; is neither.</source>
        <translation>--sound には copy または encode を指定します。「%1」はどちらでもありません。</translation>
    </message>
    <message>
        <source>--loudness takes LUFS from -70 to -5; &quot;%1&quot; are none.</source>
        <translation>--loudness には -70 から -5 の LUFS を指定します。「%1」は使用できません。</translation>
    </message>
    <message>
        <source>--quality and --bitrate exclude each other.</source>
        <translation>--quality と --bitrate は同時に指定できません。</translation>
    </message>
    <message>
        <source>--loudness changes the sound, which --sound copy does not.</source>
        <translation>--loudness は音声を変更しますが、--sound copy は変更しません。</translation>
    </message>
    <message>
        <source>--hdr keep needs --codec hevc.</source>
        <translation>--hdr keep には --codec hevc が必要です。</translation>
    </message>
    <message>
        <source>--hdr keep needs --encoder software or auto.</source>
        <translation>--hdr keep には --encoder software または auto が必要です。</translation>
    </message>
    <message>
        <source>Size of the result, or its height, such as 1080x1920 or 1920p; as large as the crop when not given.</source>
        <translation>結果のサイズまたは高さ (1080x1920、1920p など)。指定しない場合はクロップと同じ大きさです。</translation>
    </message>
    <message>
        <source>Frames a second of the result; those of the source when not given.</source>
        <translation>結果のフレーム/秒。指定しない場合は元の動画と同じです。</translation>
    </message>
    <message>
        <source>Constant quality from 0 to 100, about alike in each codec, instead of a bit rate.</source>
        <translation>ビットレートの代わりに、0 から 100 の一定の品質 (どのコーデックでもほぼ同じ)。</translation>
    </message>
    <message>
        <source>Bits a second of the picture, such as 800k or 6M; those of the source when not given.</source>
        <translation>映像のビット/秒 (800k、6M など)。指定しない場合は元の動画と同じです。</translation>
    </message>
    <message>
        <source>Codec of the picture: h264, hevc or av1 (h264).</source>
        <translation>映像のコーデック: h264、hevc、av1 (h264)。</translation>
    </message>
    <message>
        <source>What encodes the picture: software, vaapi, nvenc, qsv, or auto: hardware if ten frames of the video show that it works (software).</source>
        <translation>映像のエンコード方法: software、vaapi、nvenc、qsv、または auto: 動画の 10 フレームで動作が確認できたハードウェア (software)。</translation>
    </message>
    <message>
        <source>What becomes of a picture in high dynamic range: tonemap to the usual range, or keep, as 10-bit HEVC (tonemap).</source>
        <translation>ハイダイナミックレンジの映像の扱い: tonemap は通常のレンジに変換、keep は 10 ビット HEVC のまま (tonemap)。</translation>
    </message>
    <message>
        <source>Bring the sound to this loudness in LUFS (EBU R128), such as -14.</source>
        <translation>音声をこのラウドネス (LUFS、EBU R128) にします (例: -14)。</translation>
    </message>
    <message>
        <source>What becomes of the sound: encode as AAC, or copy bit for bit where MP4 can hold it. When not given, AAC in mono or stereo that nothing changes is copied, and any other sound is encoded.</source>
        <translation>音声の扱い: encode は AAC にエンコードし、copy は MP4 に格納できる場合にそのままコピーします。指定しない場合、変更のないモノラルまたはステレオの AAC はコピーし、その他の音声はエンコードします。</translation>
    </message>
</context>
<context>
    <name>PreviewOverlay</name>
    <message>
        <source>Frame %1</source>
        <translation>フレーム %1</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>ショット %1 / %2</translation>
    </message>
    <message>
        <source>confidence %1</source>
        <translation>信頼度 %1</translation>
    </message>
</context>
<context>
    <name>QueueBar</name>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 / %2 完了</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>失敗 %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n done</source>
        <translation>
            <numerusform>完了 %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cancelled</source>
        <translation>
            <numerusform>キャンセル %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>要確認 %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Progress of all exports</source>
        <translation>すべての書き出しの進行状況</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Go on with the exports</source>
        <translation>書き出しを再開します</translation>
    </message>
    <message>
        <source>Interrupt the exports for a while</source>
        <translation>書き出しをしばらく中断します</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>すべてキャンセル</translation>
    </message>
    <message>
        <source>Cancel all exports of Reframe All that are not done</source>
        <translation>「すべてリフレーム」の未完了の書き出しをすべてキャンセルします</translation>
    </message>
    <message>
        <source>Retry failed</source>
        <translation>失敗を再試行</translation>
    </message>
    <message>
        <source>Export those that failed again</source>
        <translation>失敗したものをもう一度書き出します</translation>
    </message>
    <message>
        <source>Look at them</source>
        <translation>確認する</translation>
    </message>
    <message>
        <source>Open the first video that has doubtful shots</source>
        <translation>要確認ショットがある最初の動画を開きます</translation>
    </message>
    <message numerus="yes">
        <source>%n without all edits</source>
        <translation>
            <numerusform>一部の編集なし %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReframeJob</name>
    <message>
        <source>%1: %2 analysed</source>
        <translation>%1: %2 を解析しました</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3</source>
        <translation>%1: %2 -&gt; %3</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 フレーム</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n フレーム</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>%1 をリフレームできません: 動画の映像がありません。</translation>
    </message>
    <message>
        <source>Cannot follow %1 in %2: %3.</source>
        <translation>%2 で %1 に追従できません: %3。</translation>
    </message>
    <message>
        <source>Cannot write %1: it is one of the inputs.</source>
        <translation>%1 に書き込めません: 入力ファイルの 1 つです。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it is too short (%2; 32 are needed).</source>
        <translation>%1 をリフレームできません: 短すぎます (%2、32 フレーム必要)。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2:%3 already.</source>
        <translation>%1 をリフレームできません: すでにアスペクト比 %2:%3 です。</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds %2 of the %3 of %4.</source>
        <translation>%1 を使用できません: %2 フレーム分しかありません (%4: %3)。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: the analysis found nothing.</source>
        <translation>%1 をリフレームできません: 解析で何も見つかりませんでした。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: there is no video in this folder.</source>
        <translation>%1 をリフレームできません: このフォルダーに動画がありません。</translation>
    </message>
    <message>
        <source>Cannot draw the contact sheet of %1.</source>
        <translation>%1 のコンタクトシートを描画できません。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>%1 をリフレームできません: %2。</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3 (encoded by %4)</source>
        <translation>%1: %2 -&gt; %3 (エンコーダー: %4)</translation>
    </message>
    <message>
        <source>frames %1 to %2</source>
        <translation>フレーム %1～%2</translation>
    </message>
    <message>
        <source>%1: skipped, up to date: %2</source>
        <translation>%1: スキップしました。最新です: %2</translation>
    </message>
    <message>
        <source>The picture of %1 is enlarged: its size, %2 x %3, is above that of the crop, %4 x %5.</source>
        <translation>%1 の画面は拡大されます: サイズ %2 x %3 がクロップの %4 x %5 を上回っています。</translation>
    </message>
</context>
<context>
    <name>ReframeJobParts</name>
    <message>
        <source>Cannot take that part of %1: %2.</source>
        <translation>%1 のその部分は処理できません: %2。</translation>
    </message>
    <message>
        <source>Cannot join %1: pictures are for an analysis, and with --apply there is none.</source>
        <translation>%1 を結合できません: 画像は解析用ですが、--apply では解析を行いません。</translation>
    </message>
    <message>
        <source>Cannot join %1: parts of the video need the crop track that they were made with (--apply).</source>
        <translation>%1 を結合できません: 動画の部分には、作成に使った切り抜きトラックが必要です (--apply)。</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>%1 を解析できません: %2。</translation>
    </message>
</context>
<context>
    <name>ReframeOptions</name>
    <message>
        <source>Aspect ratio of the result (9:16); several with commas between them: the video is looked at once.</source>
        <translation>結果のアスペクト比 (9:16)。コンマ区切りで複数指定でき、動画の解析は一度だけです。</translation>
    </message>
    <message>
        <source>How readily the crop follows: auto, fast or slow (auto).</source>
        <translation>クロップが追従する速さ: auto、fast、slow (auto)。</translation>
    </message>
    <message>
        <source>Where several people talk, follow who speaks: auto or off (auto).</source>
        <translation>複数の人が話すとき、話している人に追従: auto または off (auto)。</translation>
    </message>
    <message>
        <source>Where to write the video; beside the input when not given.</source>
        <translation>動画の書き込み先。指定しない場合は入力と同じ場所です。</translation>
    </message>
    <message>
        <source>Write the crop of every frame, as .json or .csv.</source>
        <translation>全フレームのクロップを .json または .csv で書き込みます。</translation>
    </message>
    <message>
        <source>Write the crop as a project or as keyframes for another program: .mlt, .kdenlive, .fcpxml, .txt (After Effects) or .ffscript (ffmpeg). A suffix alone, such as mlt, names the file after the video. May be given several times.</source>
        <translation>クロップを他のプログラム用のプロジェクトまたはキーフレームとして書き込みます: .mlt、.kdenlive、.fcpxml、.txt (After Effects)、.ffscript (ffmpeg)。mlt のように拡張子だけを指定すると、ファイル名は動画に合わせて付きます。複数回指定できます。</translation>
    </message>
    <message>
        <source>Take the crops from FILE instead of analysing.</source>
        <translation>解析せずに FILE のクロップを使います。</translation>
    </message>
    <message>
        <source>Decide as FILE says (.json): what to follow, to avoid, where to hold the crop or to show the whole picture.</source>
        <translation>FILE (.json) の内容に従って決定します: 追従するもの、避けるもの、クロップを固定する場所、画面全体を表示する場所。</translation>
    </message>
    <message>
        <source>Write what --choices and --follow decided to FILE (.json), with what its pictures look like, for this or another cut of the video.</source>
        <translation>--choices と --follow で決めた内容を画像の特徴とともに FILE (.json) に書き込みます。この動画または別の編集版で使えます。</translation>
    </message>
    <message>
        <source>Follow what is at the point X,Y, or in the box from X,Y of the size W,H, through its shot. TIME in seconds, or a frame (75f); the place in pixels, or in fractions of the picture. May be given several times.</source>
        <translation>点 X,Y にあるもの、または X,Y から大きさ W,H の枠内にあるものに、そのショットの間追従します。TIME は秒またはフレーム (75f)、位置はピクセルまたは画面に対する割合です。複数回指定できます。</translation>
    </message>
    <message>
        <source>Write the source with the crop drawn: a contact sheet as .png, or all of it, with sound and with what the analysis found, as .mp4.</source>
        <translation>クロップを描き込んだ元の動画を書き込みます: コンタクトシートは .png、音声と解析結果を含む全体は .mp4。</translation>
    </message>
    <message>
        <source>Write a page (.html) that shows what the analysis found.</source>
        <translation>解析結果を示すページ (.html) を書き込みます。</translation>
    </message>
    <message>
        <source>Keep what an analysis saw in FOLDER, or nowhere, instead of the usual folder.</source>
        <translation>解析の記録を通常のフォルダーの代わりに FOLDER に保存します (none: 保存しない)。</translation>
    </message>
    <message>
        <source>Use the optional detectors in FOLDER, or none, instead of those that are installed.</source>
        <translation>インストール済みの検出器の代わりに FOLDER の検出器を使います (none: 使わない)。</translation>
    </message>
    <message>
        <source>Analyse only; write no video.</source>
        <translation>解析だけを行い、動画は書き込みません。</translation>
    </message>
    <message>
        <source>Replace existing files instead of adding a number to the name.</source>
        <translation>名前に番号を付けず、既存のファイルを置き換えます。</translation>
    </message>
    <message>
        <source>Print progress and results as JSON lines.</source>
        <translation>進行状況と結果を JSON 形式で 1 行ずつ出力します。</translation>
    </message>
    <message>
        <source>Print errors only.</source>
        <translation>エラーだけを出力します。</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>このテキストを表示します。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>%1
Try reframe --help.</source>
        <translation>%1
reframe --help を参照してください。</translation>
    </message>
    <message>
        <source>%1 or .%2</source>
        <translation>%1 または .%2</translation>
    </message>
    <message>
        <source>No input file was given.</source>
        <translation>入力ファイルが指定されていません。</translation>
    </message>
    <message>
        <source>--output and --no-video exclude each other.</source>
        <translation>--output と --no-video は同時に指定できません。</translation>
    </message>
    <message>
        <source>--report shows what an analysis found, and with --apply there is none.</source>
        <translation>--report は解析結果を示しますが、--apply では解析を行いません。</translation>
    </message>
    <message>
        <source>--apply takes one input.</source>
        <translation>--apply の入力は 1 つだけです。</translation>
    </message>
    <message>
        <source>--apply takes one aspect ratio.</source>
        <translation>--apply のアスペクト比は 1 つだけです。</translation>
    </message>
    <message>
        <source>--save-choices takes one aspect ratio.</source>
        <translation>--save-choices のアスペクト比は 1 つだけです。</translation>
    </message>
    <message>
        <source>--choices and --follow take one input.</source>
        <translation>--choices と --follow の入力は 1 つだけです。</translation>
    </message>
    <message>
        <source>--choices and --follow guide the analysis, and with --apply there is none.</source>
        <translation>--choices と --follow は解析を導きますが、--apply では解析を行いません。</translation>
    </message>
    <message>
        <source>--save-choices writes what --choices and --follow decided, and neither was given.</source>
        <translation>--save-choices は --choices と --follow の内容を書き込みますが、どちらも指定されていません。</translation>
    </message>
    <message>
        <source>--edit-list takes the name of a .%1 file or such a suffix alone; %2 is neither.</source>
        <translation>--edit-list には .%1 ファイルの名前、または拡張子だけを指定します。%2 はどちらでもありません。</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios --edit-list takes a suffix alone; write %1 instead of %2.</source>
        <translation>入力やアスペクト比が複数の場合、--edit-list には拡張子だけを指定します。%2 ではなく %1 と書いてください。</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios %1 must name an existing folder; %2 is none.</source>
        <translation>入力やアスペクト比が複数の場合、%1 には既存のフォルダーを指定します。%2 はフォルダーではありません。</translation>
    </message>
    <message>
        <source>%1 takes an existing folder or the name of a .%2 file; %3 is neither.</source>
        <translation>%1 には既存のフォルダー、または .%2 ファイルの名前を指定します。%3 はどちらでもありません。</translation>
    </message>
    <message>
        <source>%1 begins like an option; as a file it is written ./%1.</source>
        <translation>%1 はオプションのように始まっています。ファイルとしては ./%1 と書きます。</translation>
    </message>
    <message>
        <source>Turns a video into another aspect ratio and keeps its subject in the picture.</source>
        <translation>動画を別のアスペクト比に変換し、被写体を画面内に収めます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no aspect ratio; write two whole numbers such as 9:16, neither more than 20 times the other.</source>
        <translation>「%1」はアスペクト比ではありません。9:16 のように整数 2 つを書いてください。一方が他方の 20 倍を超えることはできません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no speed; it is auto, fast or slow.</source>
        <translation>「%1」は速度ではありません。auto、fast、slow のいずれかです。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing to follow; write a time and a place such as 3.5@640,360, or a time and a box such as 3.5@0.4,0.2,0.1,0.5.</source>
        <translation>「%1」は追従対象ではありません。3.5@640,360 のような時間と位置、または 3.5@0.4,0.2,0.1,0.5 のような時間と枠を書いてください。</translation>
    </message>
    <message>
        <source>--speaker takes auto or off; &quot;%1&quot; is neither.</source>
        <translation>--speaker には auto または off を指定します。「%1」はどちらでもありません。</translation>
    </message>
    <message>
        <source>--status must not name an input.</source>
        <translation>--status に入力ファイルは指定できません。</translation>
    </message>
    <message>
        <source>The video files to reframe; a folder is all videos in it.</source>
        <translation>リフレームする動画ファイル。フォルダーの場合はその中のすべての動画。</translation>
    </message>
    <message>
        <source>--frames takes one input.</source>
        <translation>--frames の入力は 1 つだけです。</translation>
    </message>
    <message>
        <source>--frames takes one aspect ratio.</source>
        <translation>--frames の縦横比は 1 つだけです。</translation>
    </message>
    <message>
        <source>--frames with --apply renders a part of the video, and --no-video excludes that.</source>
        <translation>--frames と --apply は動画の一部をレンダリングするため、--no-video と併用できません。</translation>
    </message>
    <message>
        <source>--frames does a part of the work; files about the whole video, and choices, are for --join.</source>
        <translation>--frames は作業の一部だけを行います。動画全体のファイルと指定は --join で使います。</translation>
    </message>
    <message>
        <source>--join takes a video and then its parts.</source>
        <translation>--join には動画とその部分を順に指定します。</translation>
    </message>
    <message>
        <source>--frames takes frames such as 0-2999, or a part such as 3/8; &quot;%1&quot; is neither.</source>
        <translation>--frames には 0-2999 のようなフレームか 3/8 のような部分を指定します。「%1」はどちらでもありません。</translation>
    </message>
    <message>
        <source>The name of an input file is empty.</source>
        <translation>入力ファイルの名前が空です。</translation>
    </message>
    <message>
        <source>--%1 needs a value, and an empty one was given.</source>
        <translation>--%1 には値が必要ですが、空の値が指定されました。</translation>
    </message>
</context>
<context>
    <name>ReframeParts</name>
    <message>
        <source>Cannot join %1: it is a part of another video than %2.</source>
        <translation>%1 を結合できません: %2 とは別の動画の部分です。</translation>
    </message>
    <message>
        <source>Cannot join %1: it was made with other settings or by another version (&quot;%2&quot;; now &quot;%3&quot;).</source>
        <translation>%1 を結合できません: 別の設定または別のバージョンで作成されました（「%2」、現在は「%3」）。</translation>
    </message>
    <message>
        <source>Cannot join the parts of %1: the frames %2 to %3 are missing.</source>
        <translation>%1 の部分を結合できません: フレーム %2～%3 がありません。</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: both have the frames %3 to %4.</source>
        <translation>%1 と %2 を結合できません: フレーム %3～%4 が両方にあります。</translation>
    </message>
    <message>
        <source>Cannot join %1: it is no part that --frames wrote.</source>
        <translation>%1 を結合できません: --frames が書き出した部分ではありません。</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: only one of them holds pictures of the analysis.</source>
        <translation>%1 と %2 を結合できません: 解析用の画像を含むのは一方だけです。</translation>
    </message>
</context>
<context>
    <name>ReframeProgram</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>%1 をリフレームできません: %2。</translation>
    </message>
</context>
<context>
    <name>ReframeReporter</name>
    <message>
        <source>%1: analyzing %2 %%3</source>
        <translation>%1: 解析中 %2%%3</translation>
    </message>
    <message>
        <source>%1: drawing the preview %2 %%3</source>
        <translation>%1: プレビューを描画中 %2%%3</translation>
    </message>
    <message>
        <source>%1: rendering %2 %%3</source>
        <translation>%1: レンダリング中 %2%%3</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>警告: %1</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>標準出力に書き込めません: %1。</translation>
    </message>
    <message>
        <source>an error occurred</source>
        <translation>エラーが発生しました</translation>
    </message>
    <message>
        <source>%1: interrupted.</source>
        <translation>%1: 中断されました。</translation>
    </message>
    <message>
        <source>%1: interrupted after %2 was written.</source>
        <translation>%1: %2 を書き込んだ後に中断されました。</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Cannot write to the folder %1.</source>
        <translation>フォルダー %1 に書き込めません。</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>StatusFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1 に書き込めません: %2。</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>, %1 s left</source>
        <translation>、残り %1 秒</translation>
    </message>
    <message>
        <source>, %1 min %2 s left</source>
        <translation>、残り %1 分 %2 秒</translation>
    </message>
</context>
</TS>
